// The file system as the program sees it: paths in program form, resolved to
// native ones at this boundary. Names are matched exactly first and then
// without regard to case, part by part (the first in byte order wins when two
// differ only in case); "/" is taken as "\"; trailing blanks and dots of each
// part are dropped; a part beginning with "." is hidden. The layer keeps a
// current folder in program form, against which relative paths resolve.
#pragma once

#include "platform/Drives.h"

#include <QString>
#include <QStringList>

namespace lumen {

enum class TreeDeleteResult { Deleted, Missing, Refused, Failed };

class FileSystem {
public:
    FileSystem(DriveMap drives, QString currentFolder);

    DriveMap& drives() { return drives_; }
    const DriveMap& drives() const { return drives_; }

    // Reads Drives.txt in the given native folder, writing its default first
    // when it is missing.
    void loadDrivesFile(const QString& nativeFolder);

    QString curDir() const { return current_; }
    bool chDir(const QString& programPath); // false when it isn't a folder

    // Program form to native, each part resolved as above. Parts that don't
    // exist are kept as given. An address ("://") or a path without a known
    // drive resolves against the current folder.
    QString toNative(const QString& programPath) const;
    QString toProgram(const QString& nativePath) const { return drives_.toProgram(nativePath); }

    // Dir(path): the name (no folder) of the first normal file that the path
    // names, or "" when none. "*" and "?" act as wildcards only when no file
    // has the literal name. Folders, hidden names and names that don't fit
    // the program form are left out; matching ignores case, and "*.*" also
    // matches names without a dot.
    QString dir(const QString& pathOrPattern) const;

    bool isFile(const QString& programPath) const;   // normal, non-hidden file
    bool isFolder(const QString& programPath) const; // folder (followed links too)
    qint64 fileLength(const QString& programPath) const; // -1 when missing

    // Sorted names in a folder; hidden names, names with "\" or bytes that
    // aren't UTF-8 are left out.
    QStringList files(const QString& programFolder, const QString& pattern = QStringLiteral("*.*")) const;
    QStringList folders(const QString& programFolder) const;

    bool makeFolder(const QString& programPath);           // one level; false if it exists
    bool copyFile(const QString& from, const QString& to); // replaces "to"
    bool renameFile(const QString& from, const QString& to); // fails if "to" exists
    bool deleteFile(const QString& programPath);           // a link goes, never its target

    // Attribute word: 1 not writable, 2 hidden (dot name), 16 folder, summed;
    // -1 when the path doesn't exist.
    int attributes(const QString& programPath) const;
    bool clearAttributes(const QString& programPath); // chmod u+w

    // Deletes a folder and everything in it, links removed without being
    // followed. Refuses drive roots, the home folder, the folder given as
    // protected (the data folder) and its ancestors, roots of Drives.txt and
    // mount points.
    TreeDeleteResult deleteTree(const QString& programPath);
    void addProtectedFolder(const QString& programPath);

private:
    QString resolve(const QString& programPath) const;
    DriveMap drives_;
    QString current_;
    QStringList protected_;
};

} // namespace lumen
