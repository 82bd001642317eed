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

// How a folder's tree is listed: its files, each one line. The selection
// window lists through its own boxes and filters; without one, every file
// of the tree is walked.
using TreeLister = std::function<QStringList(const QString& folder)>;

// The lines that `name` (program form) contributes. A list file is a list
// when its first line holds both ":" and "."; then every line of it that
// holds both is taken, as it stands. Otherwise, and when it can't be read,
// the file is one line itself, unless a list line can't hold its name as one
// main file (staysOneMainFile): then it gives nothing.
QStringList listEntryLines(const FileSystem& fs, const QString& name, EntryRule rule,
                           const TreeLister& tree = {});

} // namespace lumen
