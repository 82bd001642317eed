// The file system as the program sees it: paths in program form, resolved to
// native ones at this boundary. Names are matched exactly first and then
// without regard to case, part by part (the first in byte order wins when two
// differ only in case); "/" is taken as "\"; trailing blanks and dots of each
// part are dropped; "." and ".." parts step as usual (".." stops at the drive
// root); a part beginning with "." is hidden. The layer keeps a current folder
// in program form, against which relative paths resolve: "a.jpg" and
// "sub\a.jpg" from the current folder, "\a.jpg" from the root of its drive,
// "C:a.jpg" from the current folder when it is on C: and from C:\ otherwise.
#pragma once

#include "platform/Drives.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <utility>

namespace lumen {

enum class TreeDeleteResult { Deleted, Missing, Refused, Failed };

class FileSystem {
public:
    FileSystem(DriveMap drives, QString currentFolder);

    DriveMap& drives() { return drives_; }
    const DriveMap& drives() const { return drives_; }

    // Audio CDs: at the root of a drive whose Drives.txt line names a CD
    // device, "TrackNN.cda" (NN two digits, from 01) is a file for each track
    // of the disc in the device, as the CD file system of Windows showed
    // them. The counter reads the disc (0 without one); without a counter no
    // track is there. `dir`, `isFile`, `fileLength` (44 bytes, the size of a
    // Windows track file), `attributes` (read-only), `files` and
    // `listFolder` know them; nothing can be opened, copied or changed.
    using CdTrackCounter = std::function<int(const QString& device)>;
    void setCdTrackCounter(CdTrackCounter counter) { cdTrackCounter_ = std::move(counter); }

    // Reads Drives.txt in the given native folder, writing its default first
    // when it is missing. The drive map is built anew from the home folder
    // and the file's lines.
    void loadDrivesFile(const QString& nativeFolder);

    // The current folder, absolute, without a trailing "\" except at a drive
    // root ("C:\", "C:\shows"), with the names as they stand on disk.
    QString curDir() const { return current_; }
    bool chDir(const QString& programPath); // false when it isn't a folder
    // An accepted file dialog: the current folder becomes the chosen file's.
    void chDirToFolderOf(const QString& nativeFile);

    // Program form to native, each part resolved as above. Parts that don't
    // exist are kept as given. An address ("://"), an empty text and a path
    // on a drive letter that isn't known give "": callers treat that as a
    // missing file (mind that QDir("") is the working folder).
    QString toNative(const QString& programPath) const;
    QString toProgram(const QString& nativePath) const { return drives_.toProgram(nativePath); }

    // Dir(path): the name (no folder) of the first normal file that the path
    // names, or "" when none. "*" and "?" act as wildcards only when no file
    // has the literal name. Folders, hidden names and names that don't fit
    // the program form are left out; matching ignores case, and a pattern
    // ending in ".*" also matches names without that dot ("*.*" matches
    // "README"). The name is given as it stands on disk; with wildcards the
    // first in the order of `files`. A path ending in "\" lists its folder.
    QString dir(const QString& pathOrPattern) const;

    bool isFile(const QString& programPath) const;   // normal, non-hidden file
    bool isFolder(const QString& programPath) const; // folder (followed links too)
    bool isLink(const QString& programPath) const;   // a symbolic link itself
    // Something that is neither a normal file nor a folder (a device, a named
    // pipe, a socket, a link to one of those or to nothing), under a name
    // that isn't hidden. Never opened; it counts as present where a missing
    // file would be made with its default.
    bool isSpecialFile(const QString& programPath) const;
    qint64 fileLength(const QString& programPath) const; // -1 when missing or a folder

    // Sorted names in a folder, without regard to case and then in byte
    // order; hidden names, names with "\" or bytes that aren't UTF-8 are left
    // out. `files` gives normal files matching the pattern as `dir` matches;
    // `folders` gives folders, linked ones included.
    QStringList files(const QString& programFolder,
                      const QString& pattern = QStringLiteral("*.*")) const;
    QStringList folders(const QString& programFolder) const;

    // One reading of a folder for walks through trees: the normal files that
    // match any of the patterns (matched as `files` matches), and the
    // folders, with the folders that are symbolic links kept apart; each
    // list in the order of `files`. Empty lists for a missing folder.
    struct FolderListing {
        QStringList files;
        QStringList folders;       // real folders
        QStringList linkedFolders; // symbolic links to folders
    };
    FolderListing listFolder(const QString& programFolder, const QStringList& patterns) const;

    bool makeFolder(const QString& programPath);   // one level; false if it exists
    bool removeFolder(const QString& programPath); // RmDir: an empty folder only
    // The two paths name one file (the same device and inode, links
    // followed): a copy of the one onto the other would copy a file onto
    // itself. False when either is missing.
    bool isSameFile(const QString& programPathA, const QString& programPathB) const;
    // Replaces "to" by a complete copy, staged beside it and renamed over it,
    // so a copy that fails leaves the old "to" whole; keeps the mode bits.
    // Fails, touching nothing, when "to" is "from" itself (isSameFile).
    bool copyFile(const QString& from, const QString& to);
    // Renames or moves; fails if "to" exists, unless only the case of the
    // name changes. A "/" after the last "\" of "to" is refused: the new
    // name would hold a character that the program form can't spell.
    bool renameFile(const QString& from, const QString& to);
    bool deleteFile(const QString& programPath); // a link goes, never its target

    // Attribute word: 1 not writable (the owner's write bit is clear), 2
    // hidden (dot name), 16 folder, summed; -1 when the path doesn't exist.
    int attributes(const QString& programPath) const;
    bool clearAttributes(const QString& programPath); // chmod u+w

    // Deletes a folder and everything in it, links removed without being
    // followed and other file systems inside not entered (that is Failed).
    // Refuses drive roots, the home folder, the folders given as protected
    // (the data folder), any folder holding one of those, and mount points.
    // A link to a folder is removed itself. Missing when no folder is there.
    TreeDeleteResult deleteTree(const QString& programPath);
    void addProtectedFolder(const QString& programPath);

private:
    // A program-form path made absolute: its drive letter and clean names.
    struct Parts {
        QChar drive;
        QStringList names;
    };
    std::optional<Parts> absolute(const QString& programPath) const;
    Parts resolved(const Parts& path) const; // names as found on disk
    QString nativeOf(const Parts& path) const;
    bool isGuarded(const QString& nativeFolder) const;
    QStringList cdTracksIn(const Parts& folder) const; // "Track01.cda", ...
    bool isCdTrack(const QString& programPath) const;

    DriveMap drives_;
    CdTrackCounter cdTrackCounter_;
    QString current_;
    QStringList protected_;
};

} // namespace lumen
