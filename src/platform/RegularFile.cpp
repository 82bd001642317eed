#include "platform/RegularFile.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lumen {
namespace {

constexpr qint64 kGrowth = 1 << 20; // a file that grows while it is read

} // namespace

PathKind pathKind(const QString& nativePath)
{
    if (nativePath.isEmpty())
        return PathKind::Missing;
    const QByteArray path = QFile::encodeName(nativePath);
    struct stat status {};
    if (::lstat(path.constData(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR ? PathKind::Missing : PathKind::Other;
    if (S_ISLNK(status.st_mode) && ::stat(path.constData(), &status) != 0)
        return PathKind::Other; // a link to nothing
    if (S_ISREG(status.st_mode))
        return PathKind::Regular;
    return S_ISDIR(status.st_mode) ? PathKind::Folder : PathKind::Other;
}

bool openRegularFile(QFile& file, const QString& nativePath)
{
    if (pathKind(nativePath) != PathKind::Regular)
        return false;
    // Without blocking: should the path have become a pipe since the look
    // above, the open returns at once and the second look refuses it.
    const int fd = ::open(QFile::encodeName(nativePath).constData(),
                          O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (fd < 0)
        return false;
    struct stat status {};
    if (::fstat(fd, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(fd);
        return false;
    }
    if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return false;
    }
    return true;
}

std::optional<QByteArray> readRegularFile(const QString& nativePath, qint64 limit)
{
    QFile file;
    if (!openRegularFile(file, nativePath) || file.size() > limit)
        return std::nullopt;
    // The file may grow while it is read: no more than the limit is taken.
    QByteArray bytes(file.size(), Qt::Uninitialized);
    qint64 filled = 0;
    for (;;) {
        if (filled == bytes.size()) {
            if (filled > limit)
                return std::nullopt;
            bytes.resize(filled + std::min<qint64>(limit + 1 - filled, kGrowth));
        }
        const qint64 got = file.read(bytes.data() + filled, bytes.size() - filled);
        if (got < 0)
            return std::nullopt;
        if (got == 0)
            break;
        filled += got;
    }
    bytes.truncate(filled);
    return bytes;
}

} // namespace lumen
