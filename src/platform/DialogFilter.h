// The filters of the file dialogs, given in the classic form
// "caption|patterns|caption|patterns" ("(*.lst)|*.lst|(*.*)|*.*"). Patterns
// match names without regard to case, and "*.*" also names without a dot.
// A filter whose pattern is "*.exe" picks programs: here it lists every file
// that may be run, whatever its name, under the same caption.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace lumen {

struct DialogFilter {
    QString caption;
    QStringList patterns;  // ";"-separated in the classic form
    bool programs = false; // "*.exe": executable files instead of names
};

QList<DialogFilter> dialogFilters(const QString& classicFilter);

// Whether the dialog lists the native file under the filter (folders are
// always listed; this is about files).
bool dialogFilterMatches(const DialogFilter& filter, const QString& nativeFile);

} // namespace lumen
