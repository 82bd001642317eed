// The comment column of EditArray in its other forms. In the array an inline
// comment is the mark "<<<<<" and its lines parted by CR LF; a file comment
// is the bare name of a text file.
#pragma once

#include <QString>

namespace lumen {

// A file comment: the value names a ".TXT" file (any case) and has no mark.
bool isFileComment(const QString& value);

// How the writers take a comment column.
enum class CommentKind {
    Inline, // has the mark and no ".TXT": written as a COMMENT
    File,   // has ".TXT", mark or not: written as a FILECOMMENT, as it stands
    Neither // neither: the user is told "Check" and nothing is written
};
CommentKind commentKindOf(const QString& value);

// The value of a COMMENT item in a list file: the first line as it is, each
// line between two line breaks trimmed and given " <<<<<", the last line as
// it is. Only twenty line breaks are kept: a line that needs a later one
// repeats the line before it with one more " <<<<<".
QString commentForFile(const QString& value);

// The value of a COMMENT item in the standard text: as for the file, but the
// last line gets its " <<<<<" too, which is then cut away again by a search
// for the mark from the eighth character before the end.
QString commentForText(const QString& value);

} // namespace lumen
