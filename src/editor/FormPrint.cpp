#include "editor/FormPrint.h"

namespace lumen {

QString FormPrint::noteText()
{
    return QStringLiteral("画像の印刷について\n\n"
                          "表示中の画像は、ｴﾃﾞｨﾀｰの「画像」ボタンで画像エディター\n"
                          "(ｱﾌﾟﾘｹｰｼｮﾝ関連付けで選んだプログラム) に開き、\n"
                          "そのプログラムの「印刷」から印刷してください。\n\n"
                          "リストを開いていないときは、表示中の画像が\n"
                          "Temp.bmp として保存され、それが開かれます。");
}

FormPrint::FormPrint(QWidget* parent)
    : NoteForm(QStringLiteral("FormPrint"), QStringLiteral("印刷"), noteText(), parent)
{}

} // namespace lumen
