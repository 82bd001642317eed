// The default text of SendToList.txt, line by line, written out here so
// that the tests compare the program's file with the text itself.
#pragma once

#include <QString>
#include <QStringList>

namespace lumen::test {

inline QStringList expectedSendToListLines()
{
    using namespace Qt::StringLiterals;
    return {
        u"'このファイルで次の機能を指定できます。"_s,
        u"'"_s,
        u"'1.[Send]をクリックしたときに起動する外部アプリケーションの指定。以下使用例"_s,
        u"'C:\\Program Files\\DeepPaint3DTWDemo\\Deep3D.exe"_s,
        u"'C:\\Program Files\\Sakura\\Sakura.exe"_s,
        QString(),
        QString(),
        QString(),
        u"'------------------------------------"_s,
        u"'2.最も優先させて自動起動させる外部アプリケーションの指定。以下使用例"_s,
        u"'[外部アプリケーション名]、[AUTO_START]、[検出して起動させるための単語]を指定します。"_s,
        u"'C:\\WINDOWS\\EXPLORER.EXE, AUTO_START,.JPG,.BMP"_s,
        QString(),
        QString(),
        QString(),
        u"'------------------------------------"_s,
        u"'3.プログラム自体の内部アプリケーションを使うための指定。"_s,
        u"'[内部アプリケーション名]、[AUTO_START]、[検出して起動させるための単語]を指定します。"_s,
        u"'以下の決められた単語を使います。大小文字の制限はありません。"_s,
        u"'SHOW_PICTURE   画像表示用"_s,
        u"'SHOW_AVIANIME  アニメ表示用(MediaPlayer2)"_s,
        u"'SHOW_TEXT      テキスト表示用"_s,
        u"'SHOW_INTEX     インターネットエクスプローラー表示用"_s,
        u"'SHOW_MIDI      MIDI音楽(MediaPlayer2)"_s,
        u"'SHOW_SOUND　   サウンド用(SoundPlayer)"_s,
        u"'SHOW_CDMUSIC　 CD音楽用(MMControl)"_s,
        u"'SHOW_NON　     何もしないで無視させる"_s,
        u"'使用例"_s,
        u"SHOW_NON,AUTO_START,.BAT"_s,
        QString(),
        QString(),
        QString(),
        u"'------------------------------------"_s,
        u"'検出の判断は拡張子ではなく単語で行うため、ディレクトリー名なども対象になります。"_s,
        u"'拡張子で検出する場合には、拡張子名の前に点を付けてください。良い例 .MOV、悪い例 MOV"_s,
        u"'注意 ＊アプリケーションは５０個まで指定できます。検出のための単語も５０個まで指定できます。"_s,
        u"'[']が先頭にあると無視されます。"_s,
        u"'"_s,
        u"'MediaPlayer2では次のファイルを開くことができるとあります。ただし正常に起動できないものもあります。"_s,
        u"'このプログラムの初期設定では良く使われる一部のファイルのみ採用していますので参考にして設定してください。"_s,
        u"'(.avi､.asf､.asx､.rmi､.wav､.wma､.wax)  Microsoft Windows Media"_s,
        u"'(.mpg､.mpeg､.m1v､.mp2､.mp3､.mpa､.mpe) Moving Pictures Experts Group (MPEG) ファイル"_s,
        u"'(.mid､.rmi)                           Musical Instrument Digital Interface (MIDI) ファイル"_s,
        u"'(.qt､.aif､.aifc､.aiff､.mov)           Apple QuickTimeｮ, Macintoshｮ AIFF リソース ファイル"_s,
        u"'(.au､.snd)                            UNIX ファイル"_s,
        u"'"_s,
    };
}

} // namespace lumen::test
