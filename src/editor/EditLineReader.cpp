#include "editor/EditLineReader.h"

#include "list/CommandWords.h"
#include "platform/Basic.h"

namespace lumen {
namespace {

using namespace basic;

const QString kCommentMark = QStringLiteral("<<<<<");
const QString kCheck = QStringLiteral("Check");

struct ItemKind {
    int start;
    const char* endName;
};

const ItemKind kItemKinds[5] = {
    {kWith, "ENDWITH"},       {kDelay, "ENDDELAY"},
    {kComment, "ENDCOMMENT"}, {kFileComment, "ENDFILECOMMENT"},
    {kOption, "ENDOPTION"},
};

// A COMMENT item on a line that names a ".TXT" file, with no comment mark
// behind its "=", is a file comment: `@COMMENT=note.txt ENDCOMMENT`. The
// word must be the COMMENT word as it stands; the item still ends at the
// COMMENT's own end word.
bool takenAsFileComment(QStringView line, const linesteps::ItemStart& start,
                        const EditItemWords& words)
{
    return start.word == words.commentWord && line.indexOf(kCommentMark, start.equals) < 0 &&
           line.contains(QLatin1String(".TXT"), Qt::CaseInsensitive);
}

void store(EditLine& line, int kind, QStringView value)
{
    ListRow& row = line.row;
    switch (kind) {
    case kWith:
        row.with = value.toString();
        line.withSeen = true;
        break;
    case kDelay:
        row.delay = value.toString();
        line.delaySeen = true;
        break;
    case kComment:
        row.comment = storedComment(value.toString());
        line.commentSeen = true;
        break;
    case kFileComment:
        row.comment = value.toString();
        line.commentSeen = true;
        break;
    case kOption:
        row.option = value.toString();
        line.optionSeen = true;
        break;
    default:
        break;
    }
}

} // namespace

EditItemWords::EditItemWords(const QStringList& commandWord)
    : commentWord(commandWord.value(kComment))
{
    for (int i = 0; i < 5; ++i) {
        const ItemKind& kind = kItemKinds[i];
        const QString end = commandWord.value(kind.start + 1);
        const QString lower = LCase(end);
        items[i] = {kind.start, UCase(commandWord.value(kind.start)), end, lower, kind.endName};
        if (lower == end)
            continue;
        if (!anyLowerDiffers) {
            lowerPrefix = lower;
            anyLowerDiffers = true;
            continue;
        }
        qsizetype common = 0;
        while (common < lowerPrefix.size() && common < lower.size() &&
               lowerPrefix[common] == lower[common])
            ++common;
        lowerPrefix.truncate(common);
    }
}

namespace linesteps {

bool isBareMainFile(QStringView line)
{
    return !line.contains(QLatin1Char('@')) || !line.contains(QLatin1Char('='));
}

bool nextItemStart(QStringView line, qsizetype from, ItemStart& item)
{
    item.at = line.indexOf(QLatin1Char('@'), from);
    if (item.at < 0)
        return false;
    item.equals = line.indexOf(QLatin1Char('='), item.at);
    if (item.equals < 0)
        return false;
    item.word = line.mid(item.at + 1, item.equals - item.at - 1);
    return true;
}

const EditItemWords::Item* itemOfWord(QStringView word, const EditItemWords& words)
{
    if (word.isEmpty())
        return nullptr;
    QString caps; // made only for a word that may match
    for (const EditItemWords::Item& item : words.items) {
        if (word.size() != item.startCaps.size())
            continue;
        if (caps.isNull())
            caps = UCase(word.toString());
        if (caps == item.startCaps)
            return &item;
    }
    return nullptr;
}

qsizetype endWordFrom(QStringView line, qsizetype equals, const EditItemWords::Item& item,
                      bool lowerPossible)
{
    if (item.end.isEmpty())
        return -1;
    if (lowerPossible || item.endLower == item.end) {
        const qsizetype lower = line.indexOf(item.endLower, equals);
        if (lower >= 0 || item.endLower == item.end)
            return lower;
    }
    return line.indexOf(item.end, equals);
}

bool lowerEndWordPossible(QStringView line, const EditItemWords& words)
{
    return words.anyLowerDiffers &&
           (words.lowerPrefix.isEmpty() || line.contains(words.lowerPrefix));
}

QStringView itemValue(QStringView line, qsizetype equals, qsizetype end)
{
    return TrimView(line.mid(equals + 1, end - equals - 1));
}

QString missingEndWordMessage(const EditItemWords::Item& item)
{
    return QStringLiteral(" There is no word ") + QLatin1String(item.endName);
}

} // namespace linesteps

EditLine readEditLine(QStringView line, const EditItemWords& words)
{
    using namespace linesteps;
    EditLine read;
    switch (lineKindOf(line)) {
    case LineKind::TooIndented:
        read.kind = EditLine::Kind::LeftAlone;
        return read;
    case LineKind::Comment:
        read.kind = EditLine::Kind::Dropped;
        return read;
    case LineKind::Command:
        break;
    }
    if (TrimView(line).isEmpty()) {
        read.kind = EditLine::Kind::Dropped;
        return read;
    }
    if (isBareMainFile(line)) {
        read.row.main = TrimView(line).toString();
        return read;
    }
    read.row.main = TrimView(line.left(line.indexOf(QLatin1Char('@')))).toString();
    // Each "@" in turn; an "@" inside a value is passed, since the search
    // goes on from the end word of the item before.
    const bool lowerPossible = lowerEndWordPossible(line, words);
    qsizetype from = 0;
    ItemStart start;
    while (nextItemStart(line, from, start)) {
        const bool fileComment = takenAsFileComment(line, start, words);
        if (fileComment)
            read.messages << kCheck;
        const EditItemWords::Item* item = itemOfWord(start.word, words);
        if (!item)
            break; // an unknown word: it and every item behind it are lost
        const qsizetype end = endWordFrom(line, start.equals, *item, lowerPossible);
        if (end < 0) {
            read.messages << missingEndWordMessage(*item);
            break;
        }
        store(read, fileComment ? int(kFileComment) : item->start,
              itemValue(line, start.equals, end));
        from = end;
    }
    return read;
}

} // namespace lumen
