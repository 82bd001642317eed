#include "settings/FormFukuMan.h"

namespace lumen {

QString FormFukuMan::noteText()
{
    return QStringLiteral(
        "デジタルカメラの動画 (MOV, AVI, MPG など) と 3D画像 (WRL, NFF) を見るための\n"
        "プログラムは、パッケージとして入手できます。\n\n"
        "動画プレーヤー:  vlc, totem, mpv など\n"
        "    例)  sudo apt install vlc\n\n"
        "3Dビューワー:  view3dscene, f3d (WRL),  g3dviewer, meshlab (NFF など)\n"
        "    例)  sudo apt install view3dscene g3dviewer\n\n"
        "入れたプログラムは、ｱﾌﾟﾘｹｰｼｮﾝ関連付けの画面で\n"
        "ボタンを右ｸﾘｯｸし、「ｱﾌﾟﾘｹｰｼｮﾝ設定」で選んでください。");
}

FormFukuMan::FormFukuMan(QWidget* parent)
    : NoteForm(QStringLiteral("FormFukuMan"), QStringLiteral("プレーヤーとビューワーの入手先"),
               noteText(), parent)
{}

} // namespace lumen
