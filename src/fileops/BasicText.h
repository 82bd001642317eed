// The text and path procedures of the basic module that need nothing but
// their arguments. Paths are in the program's form, with backslashes; a path
// holding "://" is an address. Procedures that the callers rely on to change
// their variable take it by reference, and have a by-value twin for texts
// that are no variable.
#pragma once

#include <QString>
#include <QStringView>

class QDateTime;

namespace lumen {

// Trims blanks at both ends and cuts CR, LF and NUL from the end, over and
// over; then cuts CR, LF and NUL from the start (without trimming blanks
// again). Changes `text` and returns it.
QString TrimLineEnds(QString& text);
QString TrimLineEnds(const QString& text);
// The same on a view of a text, without copying it.
QStringView TrimLineEndsView(QStringView text);

// A drive mark ("*:", "?:" or "%:") stands in the text.
bool HoldsDriveMark(QStringView text);

// A fixed record field as text: TrimLineEnds, leading NULs off, blanks trimmed.
QString FixedText(const QString& field);

QString FileNameOfPath(const QString& path);         // after the last "\" ("/" for addresses)
QString NameAfterLastBackslash(const QString& path); // "" without a "\"
QString FolderOfPath(const QString& path);           // up to and with the last "\"
QString LastFolderName(const QString& path);
QString NameBeforeFirstDot(const QString& name); // "" without a "."
QString TextAfterFirstDot(const QString& name);  // "" without a "."
QString StripTrailingBackslash(const QString& path);
QString CollapseDoubleBackslash(const QString& path); // the first "\\" only

// Replaces every occurrence of `find`, left to right, case-sensitive, never
// looking at text it produced. An empty `find` leaves the text as it is.
QString SerchAndReplace(const QString& source, const QString& find, const QString& replacement);

// "2026_11_15_14_05_09" for the given moment.
QString MakeDateTimeStamp(const QDateTime& moment);

// Splits "from,to" at the first comma. Without a comma the whole text is
// "from" and "to" is empty.
struct FilePair {
    QString from;
    QString to;
};
FilePair SplitFilePair(const QString& pair);

} // namespace lumen
