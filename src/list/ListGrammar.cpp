#include "list/ListGrammar.h"

#include "list/CommandWords.h"
#include "platform/Basic.h"

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

void store(ListRow& row, int start, const QString& value)
{
    switch (start) {
    case kWith:
        row.with = value;
        break;
    case kDelay:
        row.delay = value;
        break;
    case kComment:
        row.comment = storedComment(value);
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

// The end word is looked for from the "=" on: in lower case first, then as
// it is stored. Mixed case isn't found. 0 when absent.
int findEndWord(const QString& line, int equals, const QString& endWord)
{
    const int lower = InStr(equals, line, LCase(endWord));
    if (lower > 0)
        return lower;
    return InStr(equals, line, endWord);
}

} // namespace

LineKind lineKindOf(const QString& line)
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
    return kCommentMark + value.split(kCommentMark).join(QStringLiteral("\r\n"));
}

ParsedLine parseListLine(const QString& line, const QStringList& commandWord)
{
    ParsedLine parsed;
    ListRow& row = parsed.row;
    const int ats = int(line.count(QLatin1Char('@')));
    if (ats == 0 || !line.contains(QLatin1Char('='))) {
        row.main = Trim(line);
        return parsed;
    }
    row.main = Trim(Left(line, InStr(line, QStringLiteral("@")) - 1));
    int from = 1;
    for (int k = 0; k < ats; ++k) {
        const int at = InStr(from, line, QStringLiteral("@"));
        if (at == 0)
            break;
        const int equals = InStr(at, line, QStringLiteral("="));
        if (equals == 0)
            break;
        const QString word = UCase(Mid(line, at + 1, equals - at - 1));
        const ItemKind* item = nullptr;
        for (const ItemKind& kind : kItems) {
            if (word == UCase(commandWord.value(kind.start))) {
                item = &kind;
                break;
            }
        }
        if (!item) {
            from = at + 1; // not a start word: passed over
            continue;
        }
        const QString endWord = commandWord.value(item->start + 1);
        const int end = endWord.isEmpty() ? 0 : findEndWord(line, equals, endWord);
        if (end == 0) {
            parsed.missingEndWord = QStringLiteral(" There is no word ") + QLatin1String(item->end);
            break;
        }
        store(row, item->start, Trim(Mid(line, equals + 1, end - equals - 1)));
        from = end;
    }
    return parsed;
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
