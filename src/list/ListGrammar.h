// The grammar of a list line: a main file, then items "@WORD=value ENDWORD"
// for the companion file, the delay, the comment or comment file and the
// option word. Words are those of CommandWord at load time.
#pragma once

#include <QString>
#include <QStringList>

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

LineKind lineKindOf(const QString& line);

struct ParsedLine {
    ListRow row;
    // " There is no word ENDWITH" and its fellows, at most one: the parse of
    // the line ends at a missing end word.
    QString missingEndWord;
};

// Parses one command line with the words of `commandWord` (index 1 to 34).
ParsedLine parseListLine(const QString& line, const QStringList& commandWord);

// "EG" when the text holds "@WITH", "@DELAY", "@COMMENT", "@FILECOMMENT" or
// "@OPTION" (case-sensitive), else "JP".
QString listLanguageOf(const QString& wholeText);

// A comment value as it is kept: "<<<<<" then its pieces joined by CR LF.
QString storedComment(const QString& value);

} // namespace lumen
