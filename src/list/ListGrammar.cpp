#include "list/ListGrammar.h"

#include "list/CommandWords.h"
#include "platform/Basic.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace lumen {
namespace {

using namespace basic;

const QString kCommentMark = QStringLiteral("<<<<<");
constexpr int kMostLeadingBlanks = 20;
constexpr qsizetype kStopStride = 1 << 16; // characters between two looks at the stop

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

// The start word of the item named by `word`, compared in capitals: a word
// longer than every start word is none (capitals never make a text shorter),
// and a word that isn't plain ASCII is put in capitals once.
const ListWords::Item* itemNamed(QStringView word, const ListWords& words)
{
    if (word.isEmpty() || word.size() > words.longestStart)
        return nullptr;
    if (isAscii(word)) {
        for (const ListWords::Item& item : words.items) {
            if (item.startAscii && word.size() == item.startCaps.size() &&
                word.compare(item.startCaps, Qt::CaseInsensitive) == 0)
                return &item;
        }
        return nullptr;
    }
    const QString caps = UCase(word.toString());
    for (const ListWords::Item& item : words.items) {
        if (caps == item.startCaps)
            return &item;
    }
    return nullptr;
}

// The position of a word at or after a place in the line, for places that
// only move on: a position found (or a search that found nothing) still
// answers a later place as long as it lies at or after it, so that each word
// scans each stretch of the line at most once. -1 when absent.
class WordFinder {
public:
    qsizetype next(QStringView line, const QString& word, qsizetype from)
    {
        if (searched_ < 0 || from < searched_ || (found_ >= 0 && found_ < from)) {
            const std::u16string_view haystack(reinterpret_cast<const char16_t*>(line.utf16()),
                                               std::size_t(line.size()));
            const std::u16string_view needle(reinterpret_cast<const char16_t*>(word.utf16()),
                                             std::size_t(word.size()));
            const std::size_t at = haystack.find(needle, std::size_t(from));
            found_ = at == std::u16string_view::npos ? -1 : qsizetype(at);
            searched_ = from;
        }
        return found_;
    }

private:
    qsizetype searched_ = -1;
    qsizetype found_ = -1;
};

// The end word is looked for from the "=" on: in lower case first, then as
// it is stored. Mixed case isn't found. -1 when absent (0-based positions).
struct EndWordFinder {
    WordFinder lower;
    WordFinder stored;

    qsizetype next(QStringView line, qsizetype equals, const ListWords::Item& item,
                   bool lowerPossible)
    {
        if (item.end.isEmpty())
            return -1;
        if (lowerPossible || item.endLower == item.end) {
            const qsizetype at = lower.next(line, item.endLower, equals);
            if (at >= 0 || item.endLower == item.end)
                return at;
        }
        return stored.next(line, item.end, equals);
    }
};

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
        longestStart = std::max(longestStart, caps.size());
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

void parseListLineViews(QStringView line, const ListWords& words, ListRowViews& row,
                        const std::function<bool()>& stop)
{
    const QStringView view = line;
    const qsizetype firstAt = view.indexOf(QLatin1Char('@'));
    if (firstAt < 0 || !view.contains(QLatin1Char('='))) {
        row.main = TrimView(view);
        return;
    }
    row.main = TrimView(view.left(firstAt));
    const bool lowerPossible = words.anyLowerDiffers && (words.lowerPrefix.isEmpty() ||
                                                         view.indexOf(words.lowerPrefix) >= 0);
    // Each "@" in turn. Every search starts at or after where the one before
    // it stopped, so the line is read a few times over at most, whatever it
    // holds: a line of a million "@" costs what a line of a million letters
    // does.
    EndWordFinder ends[std::size(kItems)];
    qsizetype from = 0;
    qsizetype asked = 0;
    for (;;) {
        const qsizetype at = view.indexOf(QLatin1Char('@'), from);
        if (at < 0)
            break;
        if (stop && at - asked >= kStopStride) {
            asked = at;
            if (stop())
                break;
        }
        const qsizetype equals = view.indexOf(QLatin1Char('='), at);
        if (equals < 0)
            break;
        // A word that is no start word (an empty one too) ends the items of
        // the line; those before it stay.
        const ListWords::Item* item = itemNamed(view.mid(at + 1, equals - at - 1), words);
        if (!item)
            break;
        const qsizetype end =
            ends[item - words.items.constData()].next(view, equals, *item, lowerPossible);
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
