// The grammar of a list line: a main file, then items "@WORD=value ENDWORD"
// for the companion file, the delay, the comment or comment file and the
// option word. Words are those of CommandWord at load time. An "@" whose word
// (up to the next "=") is no start word ends the items of the line, as the
// list editor reads it too; the items before it stay. Parsing takes time in
// proportion to the length of the line, whatever the line holds.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

#include <functional>

namespace lumen {

struct ListRow {
    QString main;
    QString with;
    QString delay = QStringLiteral("9999");
    QString comment;
    QString option;
};

enum class LineKind {
    Command,    // a page
    Comment,    // first non-blank character is "'": not counted
    TooIndented // more than 20 leading blanks: counted, but left empty
};

LineKind lineKindOf(QStringView line);

struct ParsedLine {
    ListRow row;
    // " There is no word ENDWITH" and its fellows, at most one: the parse of
    // the line ends at a missing end word.
    QString missingEndWord;
};

// The item words of a word table, prepared once for many lines: each start
// word in capitals, each end word as stored and in lower case.
struct ListWords {
    explicit ListWords(const QStringList& commandWord);
    struct Item {
        int start;         // index of the start word
        QString startCaps; // the start word in capitals
        bool startAscii;   // which is plain ASCII
        QString end;       // the end word as stored
        QString endLower;  // and in lower case
        const char* name;  // the end word named in the message
    };
    QList<Item> items;
    // What every lower-case end word that differs from its stored form
    // begins with ("end" for the English words): a line without it holds no
    // lower-case end word, and those searches are spared.
    QString lowerPrefix;
    bool anyLowerDiffers = false;
    qsizetype longestStart = 0; // the longest start word in capitals
};

// A parsed line as views into the line (the comment, which is changed, into
// `comment`'s own text): what the loader stores without copying each value.
struct ListRowViews {
    QStringView main;
    QStringView with;
    QStringView delay = u"9999";
    QStringView comment;
    QStringView option;
    QString commentText; // holds the stored form of an inline comment
    QString missingEndWord;
};
// `stop`, when given, is asked every 64K characters of a long line: true
// ends the parse there (the loader's stop, which pumps events as it asks).
void parseListLineViews(QStringView line, const ListWords& words, ListRowViews& row,
                        const std::function<bool()>& stop = {});

// Parses one command line with the words of `commandWord` (index 1 to 34).
ParsedLine parseListLine(QStringView line, const QStringList& commandWord);
ParsedLine parseListLine(QStringView line, const ListWords& words);

// "EG" when the text holds "@WITH", "@DELAY", "@COMMENT", "@FILECOMMENT" or
// "@OPTION" (case-sensitive), else "JP".
QString listLanguageOf(const QString& wholeText);

// A comment value as it is kept: "<<<<<" then its pieces joined by CR LF.
QString storedComment(const QString& value);

} // namespace lumen
