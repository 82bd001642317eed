// What one named item adds to a new list, when files are dropped on the
// program or named on its command line: a folder gives every file of its
// tree, a list file gives its list lines, anything else its own name.
#pragma once

#include "select/FolderWalk.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace lumen {

class FileSystem;

enum class EntryRule {
    // Names from the command line: a folder on disk gives its tree; a name
    // holding ".LST" (in capitals) is read as a list; anything else is
    // itself.
    CommandLine,
    // Dropped names, told apart by their text: one with ":" and "." is a
    // file (read as a list when it holds ".LST"); one with ":" and no "."
    // is a folder, whose tree it gives; one without ":" gives nothing.
    Dropped,
};

// The lines that `name` (program form) contributes. A list file is a list
// when its first line holds both ":" and "."; then every line of it that
// holds both is taken, as it stands. Otherwise, and when it can't be read,
// the file is one line itself. Trees are walked with `options` and `stop`.
QStringList listEntryLines(const FileSystem& fs, const QString& name, EntryRule rule,
                           const FolderWalkOptions& options = {},
                           const std::function<bool()>& stop = {});

} // namespace lumen
