// The walk through a folder and every folder beneath it, as the file
// selection and the start with files list them: the top folder first, then
// level by level (all folders one level down, in order, then all two levels
// down, ...), and in each folder its files in listing order. Folders whose
// name begins with ".", folders that are symbolic links (so a link loop
// ends) and the system's own trees (/proc, /sys, /dev, /run) are not entered.
// A file whose path a list line couldn't hold as one main file is left out
// (see staysOneMainFile).
//
// The folders still to list are kept in memory, or, as the selection window
// walks, in Head.txt (the folders of the level being listed) and Head2.txt
// (the next level) in a folder of the program's; both files are gone when
// the walk ends, however it ends.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace lumen {

class FileSystem;

struct FolderWalkOptions {
    // File pattern of each folder; several patterns are separated by ";".
    QString pattern = QStringLiteral("*.*");

    // The word filter. A blank word lists every file. Otherwise the word is
    // trimmed and taken in capitals, and is looked for in the capital text
    // of the file name alone (`target` "FILE") or of the path and name (any
    // other target). `includeMode` "EXC" drops the files that hold the word;
    // any other mode keeps only them.
    QString word;
    QString includeMode = QStringLiteral("INC");
    QString target = QStringLiteral("DIR");

    // Native folders that are never entered below the top folder.
    QStringList systemFolders{QStringLiteral("/proc"), QStringLiteral("/sys"),
                              QStringLiteral("/dev"), QStringLiteral("/run")};

    // A program-form folder for Head.txt and Head2.txt; empty keeps the
    // levels in memory. Where the files can't be written, the walk goes on
    // in memory: no folder is lost.
    QString levelFolder;
};

// What a walk asks and tells as it goes; each may be left empty.
struct FolderWalkHooks {
    // Asked before each folder is listed and before each file is taken; true
    // ends the walk there.
    std::function<bool()> stop{};
    // Asked before each folder is listed: its pattern, in place of the
    // options' pattern (the filters of the selection window may change while
    // a walk runs).
    std::function<QString()> pattern{};
    // Told after each folder is listed, with the paths it gave.
    std::function<void(const QString& folder, const QStringList& files)> folderListed{};
};

struct FolderWalkResult {
    QStringList files;    // full paths in program form, in walk order
    int folderCount = 0;  // folders listed, the top folder included
    bool stopped = false; // the walk was stopped; `files` holds what was found until then

    // The paths as list text: each followed by CR LF.
    QString listText() const;
};

// Walks `top` (a program-form folder; a missing folder gives nothing).
FolderWalkResult walkFolderTree(const FileSystem& fs, const QString& top,
                                const FolderWalkOptions& options = {},
                                const FolderWalkHooks& hooks = {});

// A folder and a name joined by "\", unless the folder ends in one.
QString joinFolderAndName(const QString& folder, const QString& name);

// A path that a line of a list holds as one main file, whole: no line break
// in it, and not both an "@" and a "=" (with both, the line would be read as
// a main file followed by items).
bool staysOneMainFile(const QString& path);

} // namespace lumen
