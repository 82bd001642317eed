// Names of folders by their case-folded form, for the look-ups that ignore
// case. A folder is read once and then kept up to date by the kernel's
// notices of change (inotify), so that looking up names that aren't there,
// again and again in a folder that grows (a site of a thousand pages), costs
// a hash look-up instead of a reading of the whole folder each time.
//
// Only folders on local file systems are kept, where every change is
// noticed; others, and any folder when notices are not to be had, are read
// each time. One index serves the process; it is safe to use from any thread.
#pragma once

#include <QHash>
#include <QMutex>
#include <QString>
#include <QStringList>

#include <sys/types.h>

namespace lumen {

class FolderIndex {
public:
    static FolderIndex& instance();

    // The entries of a native folder (all but "." and "..") that equal
    // `name` when case is ignored; none when the folder can't be read.
    QStringList entriesIgnoringCase(const QString& folder, const QString& name);

    FolderIndex(const FolderIndex&) = delete;
    FolderIndex& operator=(const FolderIndex&) = delete;

private:
    FolderIndex();
    ~FolderIndex();

    struct Folder {
        dev_t device = 0;
        ino_t inode = 0;
        QHash<QString, QStringList> byFolded;
        quint64 lastUse = 0;
    };

    void readNotices();
    void forget(int watch);
    void forgetAll();
    Folder* known(const QString& folder, dev_t device, ino_t inode);
    Folder* keep(const QString& folder, dev_t device, ino_t inode);
    static QHash<QString, QStringList> readFolder(const QString& folder, bool* ok);

    QMutex mutex_;
    int notices_ = -1;            // the inotify descriptor
    QHash<int, Folder> folders_;  // by watch
    QHash<QString, int> watches_; // native path to watch
    quint64 uses_ = 0;
};

} // namespace lumen
