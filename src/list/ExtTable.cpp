#include "list/ExtTable.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/FileSystem.h"
#include "platform/SafeFile.h"
#include "platform/StringGrid.h"
#include "platform/TextCodec.h"
#include "state/ProgramState.h"

namespace lumen {
namespace {

using namespace basic;

const QString kExtTypeFile = QStringLiteral("\\ExtType.dat");
constexpr int kMostSkippedLines = 50;

struct KindRow {
    QStringList extensions;
    const char* kind;
};

// In table order: the first row that holds the extension decides.
const QList<KindRow>& kindTable()
{
    static const QList<KindRow> rows = {
        {{"JPG", "BMP", "TIF", "ICO", "PNG"}, "PIC"},
        {{"MPG", "AVI"}, "AVI"},
        {{"MOV", "SWF", "QT"}, "IE"},
        {{"MPEG", "ASF", "ASX", "WMA", "WMV"}, "AVI"},
        {{"SND", "WAV"}, "SND"},
        {{"MID", "MIDI", "MP3", "AIF", "AIFF"}, "MIDI"},
        {{"TXT", "DAT"}, "TXT"},
        {{"CDA"}, "CDM"},
        {{"HTM", "HTML", "GIF", "PDF", "ASP", "MOV", "SWF"}, "IE"},
        {{"XV3", "CO"}, "IE"},
        {{"EXE", "BAT", "HLP", "CHM"}, "EXE"},
        {{"WRL"}, "WRL"},
        {{"NFF", "SSF"}, "NFF"},
    };
    return rows;
}

} // namespace

QStringList defaultExtTypeLines()
{
    return {
        QStringLiteral(
            "'ここでは、ファイル選択の時に頻繁に使う、表示させたい拡張子を指定できます。"),
        QStringLiteral("'頭から17行までの所で定義してください。（17種類指定できます。）"),
        QStringLiteral(
            "'行の中には、ｴｸｽﾃﾝｼｮﾝの名前と「 =　」、それとこれをテキストとして使う場合は"),
        QStringLiteral("'TEXTと追加してください。別の字ではテキストとは判断しません。"),
        QString(),
        QStringLiteral("BMP ="),
        QStringLiteral("JPG ="),
        QStringLiteral("ICO ="),
        QStringLiteral("XV3 ="),
        QStringLiteral("CO ="),
        QStringLiteral("WRL ="),
        QStringLiteral("NFF ="),
        QStringLiteral("WAV ="),
        QStringLiteral("MID ="),
        QStringLiteral("MOV ="),
        QStringLiteral("MPG ="),
        QStringLiteral("AVI ="),
        QStringLiteral("TXT = TEXT"),
        QStringLiteral("DAT = TEXT"),
        QStringLiteral("EXE ="),
        QStringLiteral("HLP = "),
        QStringLiteral("LST = "),
    };
}

void PutExtTypeToArray(VeroProcedure_Basical& basics)
{
    const QString file = basics.state().ProgramRunDir + kExtTypeFile;
    if (basics.FileExists(file))
        return;
    writeTextFileSafely(basics.services().fs.toNative(file),
                        defaultExtTypeLines().join(QStringLiteral("\r\n")) +
                            QStringLiteral("\r\n"));
}

void readExtTypeSlots(StringGrid& slots, const QString& extTypeText)
{
    const QStringList lines = text::splitLines(extTypeText);
    qsizetype next = 0;
    int skipped = 0;
    for (int slot = 0; slot < kExtSlots; ++slot) {
        QString line;
        for (;;) {
            if (next >= lines.size())
                return; // past the end of the file: the rest stay as they were
            line = lines[next++];
            if (!line.isEmpty() && !line.startsWith(QLatin1Char('\'')))
                break;
            if (++skipped > kMostSkippedLines)
                return;
        }
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (equals < 0) {
            slots.set(slot, 0, QStringLiteral("?"));
            slots.set(slot, 1, QString());
            continue;
        }
        slots.set(slot, 0, UCase(Trim(line.left(equals))));
        slots.set(slot, 1, UCase(Trim(line.mid(equals + 1))));
    }
}

void ReadExtTypeToArray(VeroProcedure_Basical& basics)
{
    const QString file = basics.state().ProgramRunDir + kExtTypeFile;
    if (const auto text = readSettingsFile(basics.services().fs.toNative(file)))
        readExtTypeSlots(basics.state().ExtTypeArray, *text);
}

QString CheckExtHat(const QString& fileName, const StringGrid& slots, bool textAsAvi)
{
    if (!fileName.contains(QLatin1Char(':')) || !fileName.contains(QLatin1Char('.')))
        return QString();
    const QString name = UCase(fileName);
    const QString extension = Trim(name.mid(name.lastIndexOf(QLatin1Char('.')) + 1));
    QString kind = QStringLiteral("NON");
    for (const KindRow& row : kindTable()) {
        if (row.extensions.contains(extension)) {
            kind = QString::fromLatin1(row.kind);
            break;
        }
    }
    if (kind == QLatin1String("TXT") && textAsAvi)
        kind = QStringLiteral("AVI");
    for (int slot = 0; slot < kExtSlots; ++slot) {
        if (slots.at(slot, 0) == extension) {
            if (slots.at(slot, 1) == QLatin1String("TEXT"))
                kind = QStringLiteral("TXT");
            break;
        }
    }
    return kind;
}

} // namespace lumen
