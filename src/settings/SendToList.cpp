#include "settings/SendToList.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/FileSystem.h"
#include "platform/SafeFile.h"
#include "platform/TextCodec.h"
#include "state/ProgramState.h"

namespace lumen {

QString sendToListPath(const ProgramState& state)
{
    return state.ProgramRunDir + QStringLiteral("\\SendToList.txt");
}

QStringList defaultSendToListLines()
{
    return {
        QStringLiteral("'このファイルで次の機能を指定できます。"),
        QStringLiteral("'"),
        QStringLiteral(
            "'1.[Send]をクリックしたときに起動する外部アプリケーションの指定。以下使用例"),
        QStringLiteral("'C:\\Program Files\\DeepPaint3DTWDemo\\Deep3D.exe"),
        QStringLiteral("'C:\\Program Files\\Sakura\\Sakura.exe"),
        QString(),
        QString(),
        QString(),
        QStringLiteral("'------------------------------------"),
        QStringLiteral("'2.最も優先させて自動起動させる外部アプリケーションの指定。以下使用例"),
        QStringLiteral("'[外部アプリケーション名]、[AUTO_START]、[検出して起動させるための単語]"
                       "を指定します。"),
        QStringLiteral("'C:\\WINDOWS\\EXPLORER.EXE, AUTO_START,.JPG,.BMP"),
        QString(),
        QString(),
        QString(),
        QStringLiteral("'------------------------------------"),
        QStringLiteral("'3.プログラム自体の内部アプリケーションを使うための指定。"),
        QStringLiteral("'[内部アプリケーション名]、[AUTO_START]、[検出して起動させるための単語]"
                       "を指定します。"),
        QStringLiteral("'以下の決められた単語を使います。大小文字の制限はありません。"),
        QStringLiteral("'SHOW_PICTURE   画像表示用"),
        QStringLiteral("'SHOW_AVIANIME  アニメ表示用(MediaPlayer2)"),
        QStringLiteral("'SHOW_TEXT      テキスト表示用"),
        QStringLiteral("'SHOW_INTEX     インターネットエクスプローラー表示用"),
        QStringLiteral("'SHOW_MIDI      MIDI音楽(MediaPlayer2)"),
        QStringLiteral("'SHOW_SOUND　   サウンド用(SoundPlayer)"),
        QStringLiteral("'SHOW_CDMUSIC　 CD音楽用(MMControl)"),
        QStringLiteral("'SHOW_NON　     何もしないで無視させる"),
        QStringLiteral("'使用例"),
        QStringLiteral("SHOW_NON,AUTO_START,.BAT"),
        QString(),
        QString(),
        QString(),
        QStringLiteral("'------------------------------------"),
        QStringLiteral(
            "'検出の判断は拡張子ではなく単語で行うため、ディレクトリー名なども対象になります。"),
        QStringLiteral(
            "'拡張子で検出する場合には、拡張子名の前に点を付けてください。良い例 .MOV、悪い例 MOV"),
        QStringLiteral("'注意 "
                       "＊アプリケーションは５０個まで指定できます。検出のための単語も５０個まで指"
                       "定できます。"),
        QStringLiteral("'[']が先頭にあると無視されます。"),
        QStringLiteral("'"),
        QStringLiteral("'MediaPlayer2では次のファイルを開くことができるとあります。ただし正常に起動"
                       "できないものもあります。"),
        QStringLiteral("'このプログラムの初期設定では良く使われる一部のファイルのみ採用していますの"
                       "で参考にして設定してください。"),
        QStringLiteral("'(.avi､.asf､.asx､.rmi､.wav､.wma､.wax)  Microsoft Windows Media"),
        QStringLiteral(
            "'(.mpg､.mpeg､.m1v､.mp2､.mp3､.mpa､.mpe) Moving Pictures Experts Group (MPEG) ファイル"),
        QStringLiteral("'(.mid､.rmi)                           Musical Instrument Digital "
                       "Interface (MIDI) ファイル"),
        QStringLiteral("'(.qt､.aif､.aifc､.aiff､.mov)           Apple QuickTimeｮ, Macintoshｮ AIFF "
                       "リソース ファイル"),
        QStringLiteral("'(.au､.snd)                            UNIX ファイル"),
        QStringLiteral("'"),
    };
}

QStringList readSendToListLines(const VeroProcedure_Basical& basics)
{
    const std::optional<QString> text =
        readSettingsFile(basics.services().fs.toNative(sendToListPath(basics.state())));
    return text ? text::splitLines(*text) : QStringList();
}

bool isSendToListRemark(const QString& trimmedLine)
{
    return trimmedLine.isEmpty() || trimmedLine.startsWith(QLatin1Char('\''));
}

void writeDefaultSendToList(VeroProcedure_Basical& basics)
{
    const QString file = sendToListPath(basics.state());
    if (basics.FileExists(file))
        return;
    writeTextFileSafely(basics.services().fs.toNative(file),
                        defaultSendToListLines().join(QStringLiteral("\r\n")) +
                            QStringLiteral("\r\n"));
}

} // namespace lumen
