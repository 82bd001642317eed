#include "platform/SafeFile.h"

#include "platform/TextCodec.h"

#include <QFile>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace lumen {

namespace {

const QByteArray kStagedMark = QByteArrayLiteral(".lumenta-");
constexpr int kUniqueLength = 6;            // mkstemp's XXXXXX
constexpr qsizetype kLongestNamePart = 200; // the staged name stays under NAME_MAX

std::function<void()>& beforeCommitHook()
{
    static std::function<void()> hook;
    return hook;
}

mode_t newFileMode()
{
    static const mode_t mask = [] {
        const mode_t current = ::umask(0);
        ::umask(current);
        return current;
    }();
    return 0666 & ~mask;
}

// The file that a write to `native` replaces: the path itself, or for a link
// to a regular file the file it names. Nothing for anything but a regular
// file or a free name.
std::optional<QByteArray> writableTarget(const QString& native)
{
    const QByteArray path = QFile::encodeName(native);
    switch (pathKind(native)) {
    case PathKind::Missing:
        return path;
    case PathKind::Regular: {
        struct stat status {};
        if (::lstat(path.constData(), &status) == 0 && !S_ISLNK(status.st_mode))
            return path;
        char resolved[PATH_MAX];
        if (::realpath(path.constData(), resolved) == nullptr)
            return std::nullopt;
        return QByteArray(resolved);
    }
    case PathKind::Folder:
    case PathKind::Other:
        break;
    }
    return std::nullopt;
}

void syncFolderOf(const QByteArray& file)
{
    const qsizetype slash = file.lastIndexOf('/');
    const QByteArray folder = slash < 0 ? QByteArray(".") : slash == 0 ? "/" : file.left(slash);
    const int fd = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

bool isAlnum(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

std::optional<pid_t> ownerOfStagedName(const QByteArray& name)
{
    const qsizetype mark = name.lastIndexOf(kStagedMark);
    if (!name.startsWith('.') || mark < 2)
        return std::nullopt;
    const qsizetype digits = mark + kStagedMark.size();
    const qsizetype dash = name.size() - kUniqueLength - 1;
    if (dash <= digits || name[dash] != '-')
        return std::nullopt;
    for (qsizetype i = dash + 1; i < name.size(); ++i) {
        if (!isAlnum(name[i]))
            return std::nullopt;
    }
    qint64 pid = 0;
    for (qsizetype i = digits; i < dash; ++i) {
        if (name[i] < '0' || name[i] > '9' || pid > INT_MAX)
            return std::nullopt;
        pid = pid * 10 + (name[i] - '0');
    }
    if (pid <= 0 || pid > INT_MAX)
        return std::nullopt;
    return pid_t(pid);
}

bool isRunning(pid_t pid)
{
    return pid == ::getpid() || ::kill(pid, 0) == 0 || errno == EPERM;
}

} // namespace

// ---- StagedFile -------------------------------------------------------------

StagedFile::StagedFile(const QString& nativeTarget, Durability durability,
                       std::optional<mode_t> mode)
    : durability_(durability)
{
    const auto target = writableTarget(nativeTarget);
    if (!target)
        return;
    target_ = *target;
    const qsizetype slash = target_.lastIndexOf('/');
    const QByteArray folder = target_.left(slash + 1);
    const QByteArray name = target_.mid(slash + 1).left(kLongestNamePart);
    QByteArray pattern = folder + '.' + name + kStagedMark + QByteArray::number(::getpid()) + '-' +
                         QByteArray(kUniqueLength, 'X');
    fd_ = ::mkostemp(pattern.data(), O_CLOEXEC);
    if (fd_ < 0)
        return;
    staged_ = pattern;
    if (mode) {
        setMode(*mode);
        return;
    }
    struct stat status {};
    const bool replacing = ::stat(target_.constData(), &status) == 0;
    setMode(replacing ? status.st_mode & 07777 : newFileMode());
}

StagedFile::~StagedFile()
{
    discard();
}

void StagedFile::setMode(mode_t mode)
{
    if (fd_ >= 0)
        ::fchmod(fd_, mode);
}

bool StagedFile::write(const char* data, qint64 size)
{
    while (fd_ >= 0 && size > 0) {
        const ssize_t written = ::write(fd_, data, std::size_t(size));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            discard();
            return false;
        }
        data += written;
        size -= written;
    }
    return fd_ >= 0;
}

bool StagedFile::writeAt(qint64 offset, const char* data, qint64 size)
{
    while (fd_ >= 0 && size > 0) {
        const ssize_t written = ::pwrite(fd_, data, std::size_t(size), off_t(offset));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            discard();
            return false;
        }
        data += written;
        size -= written;
        offset += written;
    }
    return fd_ >= 0;
}

void StagedFile::fail()
{
    discard();
}

bool StagedFile::commit()
{
    if (fd_ < 0)
        return false;
    if (durability_ != Durability::Quick && ::fsync(fd_) != 0) {
        discard();
        return false;
    }
    const int fd = std::exchange(fd_, -1);
    if (::close(fd) != 0) {
        discard();
        return false;
    }
    if (const auto& hook = beforeCommitHook())
        hook();
    if (::rename(staged_.constData(), target_.constData()) != 0) {
        discard();
        return false;
    }
    staged_.clear();
    if (durability_ == Durability::SyncedWithFolder)
        syncFolderOf(target_);
    return true;
}

void StagedFile::discard()
{
    if (fd_ >= 0)
        ::close(std::exchange(fd_, -1));
    if (!staged_.isEmpty())
        ::unlink(staged_.constData());
    staged_.clear();
}

// ---- Whole files ------------------------------------------------------------

bool writeFileSafely(const QString& nativePath, const QByteArray& bytes, Durability durability)
{
    StagedFile file(nativePath, durability);
    return file.write(bytes) && file.commit();
}

bool writeTextFileSafely(const QString& nativePath, const QString& text)
{
    return writeFileSafely(nativePath, text::encodeForFile(text));
}

bool writeFileQuickly(const QString& nativePath, const QByteArray& bytes)
{
    return writeFileSafely(nativePath, bytes, Durability::Quick);
}

bool writeTextFileQuickly(const QString& nativePath, const QString& text)
{
    return writeFileQuickly(nativePath, text::encodeForFile(text));
}

std::optional<QString> readTextFile(const QString& nativePath, qint64 limit)
{
    const auto bytes = readRegularFile(nativePath, limit);
    if (!bytes)
        return std::nullopt;
    return text::decode(*bytes);
}

std::optional<QString> readSettingsFile(const QString& nativePath)
{
    return readTextFile(nativePath, kSettingsFileLimit);
}

// ---- Staged files left behind -------------------------------------------------

std::optional<pid_t> stagedFileOwner(const QString& fileName)
{
    return ownerOfStagedName(QFile::encodeName(fileName));
}

int removeStaleStagedFiles(const QString& nativeFolder, int minimumAgeSeconds)
{
    const QByteArray folder = QFile::encodeName(nativeFolder);
    DIR* listing = ::opendir(folder.constData());
    if (!listing)
        return 0;
    const time_t before = std::time(nullptr) - minimumAgeSeconds;
    int removed = 0;
    while (const dirent* entry = ::readdir(listing)) {
        const QByteArray name(entry->d_name);
        const auto owner = ownerOfStagedName(name);
        if (!owner || isRunning(*owner))
            continue;
        const QByteArray path = folder + '/' + name;
        struct stat status {};
        if (::lstat(path.constData(), &status) != 0 || !S_ISREG(status.st_mode) ||
            status.st_mtime > before)
            continue;
        if (::unlink(path.constData()) == 0)
            ++removed;
    }
    ::closedir(listing);
    return removed;
}

namespace testing {

void setBeforeCommitHook(std::function<void()> hook)
{
    beforeCommitHook() = std::move(hook);
}

} // namespace testing

} // namespace lumen
