#include "list/ListGrammar.h"

#include "list/CommandWords.h"
#include "platform/Basic.h"

#include <string_view>

namespace lumen {
namespace {

using namespace basic;

const QString kCommentMark = QStringLiteral("<<<<<");
constexpr int kMostLeadingBlanks = 20;

struct ItemKind {
    int start;       // index of the start word
    const char* end; // the end word named in the message
};

const ItemKind kItems[] = {
    {kWith, "ENDWITH"},       {kDelay, "ENDDELAY"},
    {kComment, "ENDCOMMENT"}, {kFileComment, "ENDFILECOMMENT"},
    {kOption, "ENDOPTION"},
};

void store(ListRowViews& row, int start, QStringView value)
{
    switch (start) {
    case kWith:
        row.with = value;
        break;
    case kDelay:
        row.delay = value;
        break;
    case kComment:
        row.commentText = storedComment(value.toString());
        row.comment = row.commentText;
        break;
    case kFileComment:
        row.comment = value;
        break;
    case kOption:
        row.option = value;
        break;
    default:
        break;
    }
}

bool isAscii(QStringView text)
{
    for (QChar c : text) {
        if (c.unicode() >= 0x80)
            return false;
    }
    return true;
}

// The word in capitals equals the item's start word (already in capitals).
bool sameInCapitals(QStringView word, bool wordAscii, const ListWords::Item& item)
{
    if (wordAscii && item.startAscii)
        return word.size() == item.startCaps.size() &&
               word.compare(item.startCaps, Qt::CaseInsensitive) == 0;
    return UCase(word.toString()) == item.startCaps;
}

// The end word is looked for from the "=" on: in lower case first, then as
// it is stored. Mixed case isn't found. -1 when absent (0-based positions).
qsizetype find(QStringView text, const QString& word, qsizetype from)
{
    const std::u16string_view haystack(reinterpret_cast<const char16_t*>(text.utf16()),
                                       std::size_t(text.size()));
    const std::u16string_view needle(reinterpret_cast<const char16_t*>(word.utf16()),
                                     std::size_t(word.size()));
    const std::size_t at = haystack.find(needle, std::size_t(from));
    return at == std::u16string_view::npos ? -1 : qsizetype(at);
}

qsizetype findEndWord(QStringView line, qsizetype equals, const ListWords::Item& item,
                      bool lowerPossible)
{
    if (item.end.isEmpty())
        return -1;
    if (lowerPossible || item.endLower == item.end) {
        const qsizetype lower = find(line, item.endLower, equals);
        if (lower >= 0 || item.endLower == item.end)
            return lower;
    }
    return find(line, item.end, equals);
}

} // namespace

LineKind lineKindOf(QStringView line)
{
    const int look = qMin<int>(int(line.size()), kMostLeadingBlanks + 1);
    for (int i = 0; i < look; ++i) {
        if (line[i] == QLatin1Char(' '))
            continue;
        return line[i] == QLatin1Char('\'') ? LineKind::Comment : LineKind::Command;
    }
    return look > kMostLeadingBlanks ? LineKind::TooIndented : LineKind::Command;
}

QString storedComment(const QString& value)
{
    // The pieces between the marks joined by CR LF, behind one mark.
    return kCommentMark + QString(value).replace(kCommentMark, QStringLiteral("\r\n"));
}

ListWords::ListWords(const QStringList& commandWord)
{
    bool first = true;
    for (const ItemKind& kind : kItems) {
        const QString end = commandWord.value(kind.start + 1);
        const QString lower = LCase(end);
        const QString caps = UCase(commandWord.value(kind.start));
        items.append({kind.start, caps, isAscii(caps), end, lower, kind.end});
        if (lower == end)
            continue;
        anyLowerDiffers = true;
        if (first) {
            lowerPrefix = lower;
            first = false;
            continue;
        }
        qsizetype common = 0;
        while (common < lowerPrefix.size() && common < lower.size() &&
               lowerPrefix[common] == lower[common])
            ++common;
        lowerPrefix.truncate(common);
    }
}

ParsedLine parseListLine(QStringView line, const QStringList& commandWord)
{
    return parseListLine(line, ListWords(commandWord));
}

ParsedLine parseListLine(QStringView line, const ListWords& words)
{
    ListRowViews views;
    parseListLineViews(line, words, views);
    ParsedLine parsed;
    parsed.row = {views.main.toString(), views.with.toString(), views.delay.toString(),
                  views.comment.toString(), views.option.toString()};
    parsed.missingEndWord = views.missingEndWord;
    return parsed;
}

void parseListLineViews(QStringView line, const ListWords& words, ListRowViews& row)
{
    const QStringView view = line;
    const qsizetype firstAt = view.indexOf(QLatin1Char('@'));
    if (firstAt < 0 || !view.contains(QLatin1Char('='))) {
        row.main = TrimView(view);
        return;
    }
    row.main = TrimView(view.left(firstAt));
    const bool lowerPossible = words.anyLowerDiffers && (words.lowerPrefix.isEmpty() ||
                                                         find(view, words.lowerPrefix, 0) >= 0);
    // Each "@" in turn; every turn uses up at least one, so the count of "@"
    // bounds the turns by itself.
    qsizetype from = 0;
    for (;;) {
        const qsizetype at = view.indexOf(QLatin1Char('@'), from);
        if (at < 0)
            break;
        const qsizetype equals = view.indexOf(QLatin1Char('='), at);
        if (equals < 0)
            break;
        const QStringView word = view.mid(at + 1, equals - at - 1);
        const bool wordAscii = isAscii(word);
        const ListWords::Item* item = nullptr;
        for (const ListWords::Item& candidate : words.items) {
            if (sameInCapitals(word, wordAscii, candidate)) {
                item = &candidate;
                break;
            }
        }
        if (!item) {
            from = at + 1; // not a start word: passed over
            continue;
        }
        const qsizetype end = findEndWord(view, equals, *item, lowerPossible);
        if (end < 0) {
            row.missingEndWord = QStringLiteral(" There is no word ") + QLatin1String(item->name);
            break;
        }
        store(row, item->start, TrimView(view.mid(equals + 1, end - equals - 1)));
        from = end;
    }
}

QString listLanguageOf(const QString& wholeText)
{
    static const char* const englishItems[] = {"@WITH", "@DELAY", "@COMMENT", "@FILECOMMENT",
                                               "@OPTION"};
    for (const char* item : englishItems) {
        if (wholeText.contains(QLatin1String(item)))
            return QStringLiteral("EG");
    }
    return QStringLiteral("JP");
}

} // namespace lumen
