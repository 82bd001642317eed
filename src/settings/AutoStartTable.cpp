#include "settings/AutoStartTable.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/UserDialogs.h"
#include "settings/SendToList.h"

namespace lumen {
namespace {

using namespace basic;

const QString kAutoStart = QStringLiteral("AUTO_START");
const QString kComma = QStringLiteral(",");
const QString kTooManyApplications = QStringLiteral("強制実行するｱﾌﾟﾘｹｰｼｮﾝは最高で５０個までです");
const QString kTooManyWords = QStringLiteral("強制実行のトリガー単語は５０個までです");

// The name of a forcing line: the text before its first ",", trimmed (the
// whole line when it has none).
QString applicationName(const QString& line)
{
    const int comma = InStr(line, kComma);
    return Trim(comma > 0 ? Left(line, comma - 1) : line);
}

// The trigger words of a forcing line, in capitals: each "," behind
// AUTO_START starts one, up to the next "," or the end.
QStringList triggerWords(const QString& upperLine, int autoStartAt)
{
    const int comma = InStr(autoStartAt + int(kAutoStart.size()), upperLine, kComma);
    if (comma == 0)
        return {};
    QStringList words = Mid(upperLine, comma + 1).split(QLatin1Char(','));
    for (QString& word : words)
        word = Trim(word);
    return words;
}

// Stores the words of one row; the 51st brings the message and ends them.
void storeWords(QStringList& messages, AutoStartTable& table, int row, const QStringList& words)
{
    int index = 0;
    for (const QString& word : words) {
        if (++index > AutoStartTable::kLimit) {
            messages << kTooManyWords;
            return;
        }
        table.cells.set(index, row, word);
    }
}

} // namespace

const QStringList& showKindWords()
{
    static const QStringList words{
        QStringLiteral("SHOW_PICTURE"),  QStringLiteral("SHOW_AVIANIME"),
        QStringLiteral("SHOW_TEXT"),     QStringLiteral("SHOW_INTEX"),
        QStringLiteral("SHOW_MIDI"),     QStringLiteral("SHOW_SOUND"),
        QStringLiteral("SHOW_CDMUSIC"),  QStringLiteral("SHOW_NON"),
        QStringLiteral("SHOW_MEDIAPL2"),
    };
    return words;
}

void CheckAuto_With(VeroProcedure_Basical& basics, AutoStartTable& table)
{
    table.cells.redim(AutoStartTable::kLimit + 1, AutoStartTable::kLimit + 1);
    table.AutoStartCount = 0;
    const QString file = sendToListPath(basics.state());
    if (!basics.FileExists(file)) {
        basics.WriteTextToFile(QString(), file);
        basics.WaitMilliseconds(100);
    }

    for (const QString& message : fillAutoStartTable(table, readSendToListLines(basics)))
        basics.services().ui.msgBox(message);
}

QStringList fillAutoStartTable(AutoStartTable& table, const QStringList& lines)
{
    QStringList messages;
    int row = 0;
    for (const QString& fileLine : lines) {
        const QString line = Trim(fileLine);
        if (isSendToListRemark(line))
            continue;
        const QString upper = UCase(line);
        const int autoStartAt = InStr(upper, kAutoStart);
        if (autoStartAt == 0)
            continue;
        if (++row > AutoStartTable::kLimit) {
            messages << kTooManyApplications;
            break;
        }
        table.AutoStartCount = row;
        table.cells.set(0, row, applicationName(line));
        storeWords(messages, table, row, triggerWords(upper, autoStartAt));
    }
    return messages;
}

QString CheckAutoWith(const QString& fileName, const AutoStartTable& table, QString& forcedShowKind)
{
    forcedShowKind.clear();
    const QString upperName = UCase(fileName);
    for (int row = 1; row <= AutoStartTable::kLimit; ++row) {
        const QString name = table.name(row);
        if (name.isEmpty())
            return QString();
        for (int index = 1; index <= AutoStartTable::kLimit; ++index) {
            const QString word = table.word(row, index);
            if (!word.isEmpty() && upperName.contains(UCase(word))) {
                forcedShowKind = name;
                return name;
            }
        }
    }
    return QString();
}

} // namespace lumen
