#include "list/CommandWords.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/FileSystem.h"
#include "platform/SafeFile.h"
#include "platform/TextCodec.h"
#include "state/ProgramState.h"

namespace lumen {
namespace {

using namespace basic;

const QString kCommandListFile = QStringLiteral("\\CommandList.txt");

// The user's default word for each index.
const QStringList& defaultUserWords()
{
    static const QStringList words = {
        QString(),
        QStringLiteral("サウンドストップ"),
        QStringLiteral("最大スクリーン"),
        QStringLiteral("標準スクリーン"),
        QStringLiteral("画像スクロール"),
        QStringLiteral("画像サイズ合ワセ"),
        QStringLiteral("アニメ普通サイズ"),
        QStringLiteral("アニメフルサイズ"),
        QStringLiteral("コメントセット1"),
        QStringLiteral("コメントセット2"),
        QStringLiteral("コメントセット3"),
        QStringLiteral("コメントセット4"),
        QStringLiteral("コメントセット5"),
        QStringLiteral("テキストセット1"),
        QStringLiteral("テキストセット2"),
        QStringLiteral("テキストセット3"),
        QStringLiteral("テキストセット4"),
        QStringLiteral("テキストセット5"),
        QStringLiteral("画像背景色1"),
        QStringLiteral("画像背景色2"),
        QStringLiteral("画像背景色3"),
        QStringLiteral("画像背景色4"),
        QStringLiteral("画像背景色5"),
        QStringLiteral("ト"),
        QStringLiteral("デス"),
        QStringLiteral("オクレ"),
        QStringLiteral("デス"),
        QStringLiteral("コメント"),
        QStringLiteral("デス"),
        QStringLiteral("ファイルコメント"),
        QStringLiteral("デス"),
        QStringLiteral("オプションコマンド"),
        QStringLiteral("デス"),
        QStringLiteral("リスト自動スタート_ON"),
        QStringLiteral("リスト自動スタート_OFF"),
    };
    return words;
}

} // namespace

const QStringList& englishCommandWords()
{
    static const QStringList words = {
        QString(),
        QStringLiteral("STOPSOUND"),
        QStringLiteral("FORMMAXIMAMSIZE"),
        QStringLiteral("FORMNORMALSIZE"),
        QStringLiteral("PICTURESCROLL"),
        QStringLiteral("PUTPICTUREINIMAGE"),
        QStringLiteral("ANIMEDEFAULTSIZE"),
        QStringLiteral("ANIMEFULLSCREEN"),
        QStringLiteral("COMMENTSET1"),
        QStringLiteral("COMMENTSET2"),
        QStringLiteral("COMMENTSET3"),
        QStringLiteral("COMMENTSET4"),
        QStringLiteral("COMMENTSET5"),
        QStringLiteral("TEXTSET1"),
        QStringLiteral("TEXTSET2"),
        QStringLiteral("TEXTSET3"),
        QStringLiteral("TEXTSET4"),
        QStringLiteral("TEXTSET5"),
        QStringLiteral("PICTBACKCOL1"),
        QStringLiteral("PICTBACKCOL2"),
        QStringLiteral("PICTBACKCOL3"),
        QStringLiteral("PICTBACKCOL4"),
        QStringLiteral("PICTBACKCOL5"),
        QStringLiteral("WITH"),
        QStringLiteral("ENDWITH"),
        QStringLiteral("DELAY"),
        QStringLiteral("ENDDELAY"),
        QStringLiteral("COMMENT"),
        QStringLiteral("ENDCOMMENT"),
        QStringLiteral("FILECOMMENT"),
        QStringLiteral("ENDFILECOMMENT"),
        QStringLiteral("OPTION"),
        QStringLiteral("ENDOPTION"),
        QStringLiteral("LISTAUTOSTARTON"),
        QStringLiteral("LISTAUTOSTARTOFF"),
    };
    return words;
}

QStringList defaultCommandListLines()
{
    QStringList lines = {
        QStringLiteral("＝　の右側に、自分だけのｺﾏﾝﾄﾞを設定できます。"),
        QStringLiteral("初期設定は英語ですが、英語のままで良いときは、"),
        QStringLiteral("行の先頭に  '　を付けてセーブしてください。例えば次のようにします。"),
        QStringLiteral("'STOPSOUND = サウンドストップ"),
        QStringLiteral("ここから先は定義文です。"),
        QString(),
    };
    const QStringList& english = englishCommandWords();
    const QStringList& user = defaultUserWords();
    for (int i = 1; i <= kCommandWords; ++i) {
        if (i == kOption)
            lines << english[i] + QLatin1Char('=') + user[i];
        else
            lines << english[i] + QStringLiteral(" = ") + user[i];
    }
    return lines;
}

void PutCommandToArray(VeroProcedure_Basical& basics)
{
    ProgramState& state = basics.state();
    FileSystem& fs = basics.services().fs;
    if (fs.dir(state.ProgramRunDir + QStringLiteral("\\*.*")).isEmpty())
        fs.makeFolder(state.ProgramRunDir);
    const QString file = state.ProgramRunDir + kCommandListFile;
    if (!basics.FileExists(file)) {
        writeTextFileSafely(fs.toNative(file),
                            defaultCommandListLines().join(QStringLiteral("\r\n")) +
                                QStringLiteral("\r\n"));
    }
    SetCommandWords(basics, QStringLiteral("JP"));
}

void applyUserCommandWords(QStringList& words, const QString& commandListText)
{
    const QStringList& english = englishCommandWords();
    for (const QString& line : text::splitLines(commandListText)) {
        if (line.contains(QLatin1Char('\'')) || !line.contains(QLatin1Char('=')))
            continue;
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        const QString key = UCase(Trim(line.left(equals)));
        const QString value = UCase(Trim(line.mid(equals + 1)));
        if (key.isEmpty() || value.isEmpty())
            continue;
        const qsizetype index = english.indexOf(key);
        if (index >= 1)
            words[index] = value;
    }
}

void SetCommandWords(VeroProcedure_Basical& basics, const QString& mode)
{
    QStringList& words = basics.state().CommandWord;
    words = englishCommandWords();
    if (mode != QLatin1String("JP"))
        return;
    const QString file = basics.state().ProgramRunDir + kCommandListFile;
    const auto text = readSettingsFile(basics.services().fs.toNative(file));
    if (text)
        applyUserCommandWords(words, *text);
}

} // namespace lumen
