#include "support/OddFiles.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <climits>
#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace lumen::test {
namespace {

QByteArray bytesOf(const QString& native)
{
    return QFile::encodeName(native);
}

bool makeFifo(const QString& native)
{
    return ::mkfifo(bytesOf(native).constData(), 0644) == 0;
}

// A character device like /dev/null (1, 3), of the test's own.
bool makeDevice(const QString& native)
{
    return ::mknod(bytesOf(native).constData(), S_IFCHR | 0666, makedev(1, 3)) == 0;
}

bool linkTo(const QString& target, const QString& native)
{
    return ::symlink(bytesOf(target).constData(), bytesOf(native).constData()) == 0;
}

QString kindOf(const struct stat& status)
{
    if (S_ISREG(status.st_mode))
        return QStringLiteral("file");
    if (S_ISDIR(status.st_mode))
        return QStringLiteral("folder");
    if (S_ISFIFO(status.st_mode))
        return QStringLiteral("pipe");
    if (S_ISCHR(status.st_mode))
        return QStringLiteral("device %1,%2").arg(major(status.st_rdev)).arg(minor(status.st_rdev));
    if (S_ISLNK(status.st_mode))
        return QStringLiteral("link");
    return QStringLiteral("other");
}

} // namespace

bool makeOddFile(OddFile kind, const QString& native)
{
    const QString target = native + QStringLiteral(".target");
    switch (kind) {
    case OddFile::Pipe:
        return makeFifo(native);
    case OddFile::LinkToPipe:
        return makeFifo(target) && linkTo(target, native);
    case OddFile::Device:
        return makeDevice(native);
    case OddFile::LinkToDevice:
        return makeDevice(target) && linkTo(target, native);
    case OddFile::LinkToNothing:
        return linkTo(target, native);
    case OddFile::Folder:
        return QDir().mkdir(native);
    case OddFile::LinkToFolder:
        return QDir().mkdir(target) && linkTo(target, native);
    }
    return false;
}

QString describePath(const QString& native)
{
    const QByteArray path = bytesOf(native);
    struct stat status {};
    if (::lstat(path.constData(), &status) != 0)
        return QStringLiteral("missing");
    QString text = kindOf(status);
    if (S_ISLNK(status.st_mode)) {
        char target[PATH_MAX];
        const ssize_t length = ::readlink(path.constData(), target, sizeof target);
        const QString named = QFile::decodeName(QByteArray(target, int(qMax<ssize_t>(0, length))));
        text += QLatin1Char(':') + named + QLatin1Char('>') +
                (::stat(path.constData(), &status) == 0 ? kindOf(status) : QStringLiteral("none"));
    }
    if (S_ISREG(status.st_mode)) {
        QFile file(native);
        file.open(QIODevice::ReadOnly);
        text += QStringLiteral(" %1 bytes %2")
                    .arg(status.st_size)
                    .arg(QString::fromLatin1(
                        QCryptographicHash::hash(file.readAll(), QCryptographicHash::Md5).toHex()));
    }
    return text;
}

Watchdog::Watchdog(unsigned seconds)
{
    ::alarm(seconds);
}

Watchdog::~Watchdog()
{
    ::alarm(0);
}

namespace {

bool capabilities(__user_cap_data_struct (&data)[2], bool set)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    return ::syscall(set ? SYS_capset : SYS_capget, &header, data) == 0;
}

constexpr unsigned kOverrides = (1u << CAP_DAC_OVERRIDE) | (1u << CAP_DAC_READ_SEARCH);

} // namespace

PermissionBitsHold::PermissionBitsHold()
{
    __user_cap_data_struct data[2] = {};
    if (!capabilities(data, false) || !(data[0].effective & kOverrides))
        return;
    effective_ = data[0].effective;
    data[0].effective &= ~kOverrides;
    changed_ = capabilities(data, true);
}

PermissionBitsHold::~PermissionBitsHold()
{
    __user_cap_data_struct data[2] = {};
    if (changed_ && capabilities(data, false)) {
        data[0].effective = effective_;
        capabilities(data, true);
    }
}

} // namespace lumen::test
