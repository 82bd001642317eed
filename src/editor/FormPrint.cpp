#include "editor/FormPrint.h"

#include "platform/Controls.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

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
    : FormBase(QStringLiteral("FormPrint"), parent, Qt::Tool)
{
    setWindowTitle(QStringLiteral("印刷"));
    LabelNote = named<QLabel>(QStringLiteral("LabelNote"), noteText(), this);
    CommandClose = commandButton(QStringLiteral("CommandClose"), QStringLiteral("閉じる"), this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 12, 14, 10);
    column->addWidget(LabelNote);
    column->addWidget(CommandClose, 0, Qt::AlignRight);
    connect(CommandClose, &QPushButton::clicked, this, [this] { unload(); });
}

} // namespace lumen
