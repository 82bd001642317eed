// The walk through a folder and every folder beneath it, as the file
// selection and the start with files list them: the top folder first, then
// level by level (all folders one level down, in order, then all two levels
// down, ...), and in each folder its files in listing order. Folders whose
// name begins with ".", folders that are symbolic links (so a link loop
// ends) and the system's own trees (/proc, /sys, /dev, /run) are not entered.
// The levels are kept in memory; nothing is written to disk.
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
};

struct FolderWalkResult {
    QStringList files;    // full paths in program form, in walk order
    int folderCount = 0;  // folders listed, the top folder included
    bool stopped = false; // the walk was stopped; `files` holds what was found until then

    // The paths as list text: each followed by CR LF.
    QString listText() const;
};

// Walks `top` (a program-form folder; a missing folder gives nothing). `stop`
// is asked before each folder is listed and before each file is taken; when
// it answers true the walk ends there.
FolderWalkResult walkFolderTree(const FileSystem& fs, const QString& top,
                                const FolderWalkOptions& options = {},
                                const std::function<bool()>& stop = {});

} // namespace lumen
