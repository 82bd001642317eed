#include "platform/FolderIndex.h"

#include <QFile>
#include <QMutexLocker>

#include <dirent.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>

namespace lumen {
namespace {

constexpr int kMostFolders = 64;
constexpr uint32_t kChanges = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE_SELF |
                              IN_MOVE_SELF | IN_ONLYDIR;

// The case-folded form, one code point at a time, as QString::compare folds
// when it ignores case.
QString folded(const QString& name)
{
    QList<uint> points = name.toUcs4();
    for (uint& point : points)
        point = QChar::toCaseFolded(point);
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(points.constData()), points.size());
}

// File systems on which the kernel notices every change of a folder.
bool isLocal(const QByteArray& folder)
{
    struct statfs info {};
    if (::statfs(folder.constData(), &info) != 0)
        return false;
    switch (static_cast<unsigned long>(info.f_type)) {
    case 0xEF53:     // ext2, ext3, ext4
    case 0x9123683E: // btrfs
    case 0x58465342: // xfs
    case 0x01021994: // tmpfs
    case 0xF2F52010: // f2fs
    case 0x794C7630: // overlayfs
    case 0x2FC12FC1: // zfs
        return true;
    default:
        return false;
    }
}

void addName(QHash<QString, QStringList>& byFolded, const QString& name)
{
    QStringList& names = byFolded[folded(name)];
    if (!names.contains(name))
        names.append(name);
}

void removeName(QHash<QString, QStringList>& byFolded, const QString& name)
{
    const auto it = byFolded.find(folded(name));
    if (it == byFolded.end())
        return;
    it->removeAll(name);
    if (it->isEmpty())
        byFolded.erase(it);
}

} // namespace

FolderIndex& FolderIndex::instance()
{
    static FolderIndex index;
    return index;
}

FolderIndex::FolderIndex()
    : notices_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{}

FolderIndex::~FolderIndex()
{
    if (notices_ >= 0)
        ::close(notices_);
}

QStringList FolderIndex::entriesIgnoringCase(const QString& folder, const QString& name)
{
    const QByteArray path = QFile::encodeName(folder);
    struct stat info {};
    if (::stat(path.constData(), &info) != 0 || !S_ISDIR(info.st_mode))
        return {};
    const QString key = folded(name);
    QMutexLocker lock(&mutex_);
    if (notices_ >= 0) {
        readNotices();
        Folder* kept = known(folder, info.st_dev, info.st_ino);
        if (!kept && isLocal(path))
            kept = keep(folder, info.st_dev, info.st_ino);
        if (kept) {
            kept->lastUse = ++uses_;
            return kept->byFolded.value(key);
        }
    }
    bool ok = false;
    return readFolder(folder, &ok).value(key);
}

QHash<QString, QStringList> FolderIndex::readFolder(const QString& folder, bool* ok)
{
    QHash<QString, QStringList> byFolded;
    DIR* dir = ::opendir(QFile::encodeName(folder).constData());
    *ok = dir != nullptr;
    if (!dir)
        return byFolded;
    while (const dirent* entry = ::readdir(dir)) {
        const char* name = entry->d_name;
        if (qstrcmp(name, ".") == 0 || qstrcmp(name, "..") == 0)
            continue;
        addName(byFolded, QFile::decodeName(name));
    }
    ::closedir(dir);
    return byFolded;
}

// The kept index of the folder, or nullptr when it isn't kept.
FolderIndex::Folder* FolderIndex::known(const QString& folder, dev_t device, ino_t inode)
{
    const auto watch = watches_.constFind(folder);
    if (watch == watches_.constEnd())
        return nullptr;
    const auto it = folders_.find(*watch);
    if (it != folders_.end() && it->device == device && it->inode == inode)
        return &*it;
    forget(*watch); // the path names another folder now
    return nullptr;
}

// The index of a folder that isn't kept yet, made and kept now; nullptr when
// the folder can't be watched.
FolderIndex::Folder* FolderIndex::keep(const QString& folder, dev_t device, ino_t inode)
{
    const QByteArray path = QFile::encodeName(folder);
    const int watch = ::inotify_add_watch(notices_, path.constData(), kChanges);
    if (watch < 0)
        return nullptr;
    if (const auto it = folders_.find(watch); it != folders_.end()) {
        // The same folder by another path.
        watches_.insert(folder, watch);
        return &*it;
    }
    // Watched before it is read: a change while it is read comes as a notice
    // and is applied afterwards.
    bool ok = false;
    Folder made{device, inode, readFolder(folder, &ok), ++uses_};
    struct stat info {};
    if (!ok || ::stat(path.constData(), &info) != 0 || info.st_dev != device ||
        info.st_ino != inode) {
        ::inotify_rm_watch(notices_, watch);
        return nullptr;
    }
    if (folders_.size() >= kMostFolders) {
        const auto oldest = std::min_element(
            folders_.cbegin(), folders_.cend(),
            [](const Folder& a, const Folder& b) { return a.lastUse < b.lastUse; });
        forget(oldest.key());
    }
    watches_.insert(folder, watch);
    return &*folders_.insert(watch, std::move(made));
}

void FolderIndex::readNotices()
{
    alignas(inotify_event) char buffer[16384];
    for (;;) {
        const ssize_t length = ::read(notices_, buffer, sizeof buffer);
        if (length <= 0)
            return;
        for (ssize_t at = 0; at < length;) {
            const auto* notice = reinterpret_cast<const inotify_event*>(buffer + at);
            at += ssize_t(sizeof(inotify_event) + notice->len);
            if (notice->mask & IN_Q_OVERFLOW) {
                forgetAll();
                continue;
            }
            const auto folder = folders_.find(notice->wd);
            if (folder == folders_.end())
                continue;
            if (notice->mask & (IN_IGNORED | IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT)) {
                forget(notice->wd);
                continue;
            }
            if (notice->len == 0)
                continue;
            const QString name = QFile::decodeName(notice->name);
            if (notice->mask & (IN_CREATE | IN_MOVED_TO))
                addName(folder->byFolded, name);
            else if (notice->mask & (IN_DELETE | IN_MOVED_FROM))
                removeName(folder->byFolded, name);
        }
    }
}

void FolderIndex::forget(int watch)
{
    ::inotify_rm_watch(notices_, watch); // fails harmlessly when the kernel dropped it
    folders_.remove(watch);
    watches_.removeIf([watch](const auto& entry) { return entry.value() == watch; });
}

void FolderIndex::forgetAll()
{
    const QList<int> watches = folders_.keys();
    for (const int watch : watches)
        forget(watch);
}

} // namespace lumen
