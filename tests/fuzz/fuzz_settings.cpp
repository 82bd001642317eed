// libFuzzer target: random bytes as each settings file of the program. The
// first byte chooses the reader; the rest is the file.
//   0 DirecData.ran      1 CommandList.txt   2 ExtType.dat
//   3 SendToList.txt     4 Drives.txt        5 HTMLFormValKeep.txt
#include "html/SiteSettings.h"
#include "list/CommandWords.h"
#include "list/ExtTable.h"
#include "platform/Basic.h"
#include "platform/Drives.h"
#include "platform/StringGrid.h"
#include "platform/TextCodec.h"
#include "settings/AutoStartTable.h"
#include "state/DirecData.h"
#include "state/ProgramState.h"

#include <QStringDecoder>

#include <cstddef>
#include <cstdint>

namespace {

using namespace lumen;

void readRecord(const QByteArray& bytes)
{
    const DirecDataRecord record = DirecDataRecord::fromBytes(bytes);
    if (record.toBytes().size() != DirecDataRecord::kSize)
        __builtin_trap(); // a record is always written whole
}

void readCommandList(const QString& text)
{
    QStringList words = englishCommandWords();
    applyUserCommandWords(words, text);
    if (words.size() != englishCommandWords().size())
        __builtin_trap(); // the user's words take the places of the English ones
}

void readExtType(const QString& text)
{
    StringGrid slots(kExtSlots, 2);
    readExtTypeSlots(slots, text);
    CheckExtHat(QStringLiteral("C:\\a.jpg"), slots, false);
}

void readSendToList(const QString& text)
{
    AutoStartTable table;
    fillAutoStartTable(table, text::splitLines(text));
    if (table.AutoStartCount > AutoStartTable::kLimit)
        __builtin_trap();
    QString kind;
    CheckAutoWith(QStringLiteral("C:\\pics\\a.jpg"), table, kind);
}

void readDrives(const QByteArray& bytes)
{
    DriveMap drives(QStringLiteral("/home/user"));
    QStringDecoder decode(QStringDecoder::Utf8);
    drives.addFromText(decode(bytes));
    if (!drives.hasDrive(u'C') || !drives.hasDrive(u'Z'))
        __builtin_trap(); // home and root are always there
    drives.toProgram(QStringLiteral("/media/cdrom/a.jpg"));
}

void readFormValKeep(const QString& text)
{
    for (const QString& line : textLines(text)) {
        qint16 rate = 0;
        basic::StoreInt16(rate, basic::Val(line));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, qsizetype(size - 1));
    switch (data[0] % 6) {
    case 0:
        readRecord(bytes);
        break;
    case 1:
        readCommandList(text::decode(bytes));
        break;
    case 2:
        readExtType(text::decode(bytes));
        break;
    case 3:
        readSendToList(text::decode(bytes));
        break;
    case 4:
        readDrives(bytes);
        break;
    default:
        readFormValKeep(text::decode(bytes));
        break;
    }
    return 0;
}
