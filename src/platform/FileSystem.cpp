#include "platform/FileSystem.h"

#include "platform/FolderIndex.h"
#include "platform/RegularFile.h"
#include "platform/SafeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace lumen {

namespace {

QString wildcardExpression(const QString& pattern)
{
    QString expression;
    for (const QChar c : pattern) {
        if (c == u'*')
            expression += QStringLiteral(".*");
        else if (c == u'?')
            expression += u'.';
        else
            expression += QRegularExpression::escape(QString(c));
    }
    return expression;
}

} // namespace

QRegularExpression wildcardPattern(const QString& pattern)
{
    QString expression = wildcardExpression(pattern);
    if (pattern.endsWith(u".*"))
        expression += u'|' + wildcardExpression(pattern.chopped(2));
    return QRegularExpression(QStringLiteral("\\A(?:") + expression + QStringLiteral(")\\z"),
                              QRegularExpression::CaseInsensitiveOption);
}

namespace {

constexpr QChar kSeparator = u'\\';

QString joinNative(const QString& folder, const QString& name)
{
    if (folder.endsWith(u'/'))
        return folder + name;
    return folder + u'/' + name;
}

QString chopTrailing(QString text, QStringView characters)
{
    while (!text.isEmpty() && characters.contains(text.back()))
        text.chop(1);
    return text;
}

bool isHiddenName(const QString& name)
{
    return name.startsWith(u'.');
}

bool hasWildcards(const QString& name)
{
    return name.contains(u'*') || name.contains(u'?');
}

constexpr std::size_t kCopyChunk = 1 << 24;

bool isDriveSpec(const QString& text)
{
    return text.size() >= 2 && text.at(1) == u':';
}

// Also true for a link whose target is gone.
bool existsOrLink(const QString& native)
{
    struct stat status {};
    return ::lstat(QFile::encodeName(native).constData(), &status) == 0;
}

// A name the program form can spell holds no "\", and no line break, which
// no line of a list or a settings file could hold. Names whose bytes aren't
// UTF-8 decode to U+FFFD and so name no file: the type filters of the
// listings (files, folders) leave them out already.
bool fitsProgramForm(const QString& name)
{
    return !name.contains(kSeparator) && !name.contains(u'\r') && !name.contains(u'\n');
}

bool lessInByteOrder(const QString& a, const QString& b)
{
    return QFile::encodeName(a) < QFile::encodeName(b);
}

bool listingLess(const QString& a, const QString& b)
{
    const int order = QString::compare(a, b, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : lessInByteOrder(a, b);
}

// The entry of `folder` that is `name` when case is ignored; the first in
// byte order when there are several, "" when none.
QString findIgnoringCase(const QString& folder, const QString& name)
{
    QString best;
    for (const QString& entry : FolderIndex::instance().entriesIgnoringCase(folder, name)) {
        if (entry.compare(name, Qt::CaseInsensitive) != 0 || !fitsProgramForm(entry))
            continue;
        if (best.isEmpty() || lessInByteOrder(entry, best))
            best = entry;
    }
    return best;
}

// The bytes of the regular file `source` into a file staged for `target`,
// with the source's mode bits, renamed over the target when complete; the
// kernel copies (sendfile). Anything but a regular file is never opened.
bool copyBytes(const QString& source, const QString& target)
{
    QFile from;
    if (!openRegularFile(from, source))
        return false;
    struct stat status {};
    if (::fstat(from.handle(), &status) != 0)
        return false;
    StagedFile to(target, Durability::Quick, status.st_mode & 07777);
    if (!to.isOpen())
        return false;
    // The bytes the source had when it was opened: no last call to learn
    // that the end has come.
    off_t copied = 0;
    for (;;) {
        const ssize_t sent = ::sendfile(to.descriptor(), from.handle(), nullptr, kCopyChunk);
        if (sent < 0 && errno == EINTR)
            continue;
        if (sent < 0) {
            to.fail();
            return false;
        }
        copied += sent;
        if (sent == 0 || copied >= status.st_size)
            break;
    }
    return to.commit();
}

// Two native paths name one file: the same device and inode, links
// followed. The first is looked at first, so a missing target costs one look.
bool sameFile(const QString& a, const QString& b)
{
    struct stat first {};
    struct stat second {};
    return !a.isEmpty() && !b.isEmpty() && ::stat(QFile::encodeName(a).constData(), &first) == 0 &&
           ::stat(QFile::encodeName(b).constData(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

// The entry of `folder` called `name`, exactly or else ignoring case.
QString findEntry(const QString& folder, const QString& name)
{
    return existsOrLink(joinNative(folder, name)) ? name : findIgnoringCase(folder, name);
}

// Names against a set of patterns; "*" and "*.*" match every name without
// the cost of an expression.
class NameMatcher {
public:
    explicit NameMatcher(const QStringList& patterns)
    {
        for (const QString& pattern : patterns) {
            const QString wanted = pattern.isEmpty() ? QStringLiteral("*") : pattern;
            if (wanted == u"*" || wanted == u"*.*")
                all_ = true;
            else
                expressions_.append(wildcardPattern(wanted));
        }
    }
    bool matches(const QString& name) const
    {
        return all_ || std::any_of(expressions_.cbegin(), expressions_.cend(),
                                   [&name](const auto& e) { return e.match(name).hasMatch(); });
    }

private:
    bool all_ = false;
    QList<QRegularExpression> expressions_;
};

QStringList sortedForListing(QStringList names)
{
    std::sort(names.begin(), names.end(), listingLess);
    return names;
}

// A name as readdir gives it, when it is UTF-8.
bool decodeEntryName(const char* raw, QString& name)
{
    const QByteArrayView bytes(raw);
    if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return uchar(c) < 0x80; })) {
        name = QString::fromLatin1(bytes);
        return true;
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    name = decoder(bytes);
    return !decoder.hasError();
}

// The entries of a native folder, unsorted: normal files (links to them
// included) and folders (real ones and links apart). Hidden names, names
// that aren't UTF-8 or that the program form can't spell, links whose
// target is gone, devices, pipes and sockets are left out. One readdir,
// and a stat only where the entry's type doesn't tell (links).
struct FolderEntries {
    QStringList files;
    QStringList folders;
    QStringList linkedFolders;
};

std::optional<FolderEntries> readFolder(const QString& nativeFolder)
{
    DIR* folder = ::opendir(QFile::encodeName(nativeFolder).constData());
    if (!folder)
        return std::nullopt;
    FolderEntries entries;
    const int fd = ::dirfd(folder);
    QString name;
    while (const dirent* entry = ::readdir(folder)) {
        if (entry->d_name[0] == '.' || !decodeEntryName(entry->d_name, name) ||
            !fitsProgramForm(name))
            continue;
        unsigned char type = entry->d_type;
        bool link = type == DT_LNK;
        if (type == DT_LNK || type == DT_UNKNOWN) {
            struct stat status {};
            if (type == DT_UNKNOWN) {
                if (::fstatat(fd, entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
                    continue;
                link = S_ISLNK(status.st_mode);
            }
            if (link && ::fstatat(fd, entry->d_name, &status, 0) != 0)
                continue; // the target is gone
            type = S_ISDIR(status.st_mode) ? DT_DIR : S_ISREG(status.st_mode) ? DT_REG : DT_UNKNOWN;
        }
        if (type == DT_DIR)
            (link ? entries.linkedFolders : entries.folders).append(name);
        else if (type == DT_REG)
            entries.files.append(name);
    }
    ::closedir(folder);
    return entries;
}

// Normal files of a native folder that match the pattern, in listing order.
QStringList matchingFiles(const QString& folder, const QString& pattern)
{
    const NameMatcher matcher({pattern});
    QStringList names = readFolder(folder).value_or(FolderEntries()).files;
    names.removeIf([&matcher](const QString& name) { return !matcher.matches(name); });
    return sortedForListing(names);
}

// Names of `tracks` that match the pattern.
QStringList matchingNames(const QStringList& tracks, const QString& pattern)
{
    const QRegularExpression match = wildcardPattern(pattern);
    QStringList names;
    for (const QString& name : tracks) {
        if (match.match(name).hasMatch())
            names.append(name);
    }
    return names;
}

// The files of a listing and the CD tracks that no file of it names already.
QStringList withTracks(QStringList files, const QStringList& tracks)
{
    for (const QString& track : tracks) {
        if (!files.contains(track, Qt::CaseInsensitive))
            files.append(track);
    }
    return sortedForListing(files);
}

// The size of a track file on a Windows audio CD.
constexpr qint64 kCdTrackFileLength = 44;
constexpr int kMaxCdTracks = 99;

bool isNormalFile(const QString& native)
{
    const QFileInfo info(native);
    return info.isFile() && !isHiddenName(info.fileName());
}

// Appends the parts of a program-form path (separators already "\") to
// `names`, stepping over "." and "..", dropping trailing blanks and dots.
void appendParts(QStringList& names, const QString& path)
{
    for (const QString& part : path.split(kSeparator, Qt::SkipEmptyParts)) {
        const QString word = chopTrailing(part, u" ");
        if (word == u".")
            continue;
        if (word == u"..") {
            if (!names.isEmpty())
                names.removeLast();
            continue;
        }
        const QString name = chopTrailing(word, u" .");
        if (!name.isEmpty())
            names.append(name);
    }
}

std::optional<dev_t> deviceOf(const QByteArray& path)
{
    struct stat status {};
    if (::lstat(path.constData(), &status) != 0)
        return std::nullopt;
    return status.st_dev;
}

bool isMountPoint(const QString& native)
{
    const auto here = deviceOf(QFile::encodeName(native));
    const auto parent = deviceOf(QFile::encodeName(joinNative(native, QStringLiteral(".."))));
    return !here || !parent || *here != *parent;
}

bool isInsideOrSame(const QString& path, const QString& folder)
{
    return path == folder || folder == u"/" || path.startsWith(folder + u'/');
}

// Removes a real folder and everything in it, depth first. Links are removed
// as links; folders on another device are left alone, so the walk fails.
// Works on bytes, so names that aren't UTF-8 go too.
bool removeTree(const std::filesystem::path& folder, dev_t device)
{
    namespace fs = std::filesystem;
    std::error_code error;
    bool removedAll = true;
    // The owner must be able to list and empty the folder.
    fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, error);
    fs::directory_iterator entry(folder, error);
    if (error)
        return false;
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code entryError;
        const fs::path& path = entry->path();
        if (entry->symlink_status(entryError).type() == fs::file_type::directory) {
            const bool sameDevice = deviceOf(QByteArray(path.c_str())) == device;
            removedAll = sameDevice && removeTree(path, device) && removedAll;
        } else {
            removedAll = fs::remove(path, entryError) && removedAll;
        }
    }
    return fs::remove(folder, error) && removedAll;
}

} // namespace

FileSystem::FileSystem(DriveMap drives, QString currentFolder)
    : drives_(std::move(drives))
    , current_(QStringLiteral("C:\\"))
{
    if (const auto path = absolute(currentFolder))
        current_ = QString(path->drive) + u":\\" + path->names.join(kSeparator);
}

std::optional<FileSystem::Parts> FileSystem::absolute(const QString& programPath) const
{
    if (programPath.isEmpty() || programPath.contains(u"://"))
        return std::nullopt;
    QString text = programPath;
    text.replace(u'/', kSeparator);

    const Parts current{current_.at(0), current_.mid(3).split(kSeparator, Qt::SkipEmptyParts)};
    Parts path = current;
    if (isDriveSpec(text)) {
        const QChar letter = text.at(0).toUpper();
        if (!drives_.hasDrive(letter))
            return std::nullopt;
        text.remove(0, 2);
        if (letter != current.drive || text.startsWith(kSeparator))
            path = Parts{letter, {}};
    } else if (text.startsWith(kSeparator)) {
        path.names.clear();
    }
    appendParts(path.names, text);
    return path;
}

FileSystem::Parts FileSystem::resolved(const Parts& path) const
{
    // Most paths are spelled as they stand on disk: the deepest part that
    // exists as written is found from the end, and only the parts below it
    // are looked for without regard to case.
    Parts found{path.drive, path.names};
    QString native = nativeOf(path);
    if (native.isEmpty())
        return found;
    qsizetype exact = path.names.size();
    for (; exact > 0; --exact) {
        if (existsOrLink(native))
            break;
        native.truncate(native.lastIndexOf(u'/'));
        if (native.isEmpty())
            native = QStringLiteral("/");
    }
    for (qsizetype i = exact; i < path.names.size(); ++i) {
        // Once a part is missing, the parts below it are kept as given. The
        // first part below the deepest one is known to be missing as written.
        const QString onDisk =
            i == exact ? findIgnoringCase(native, path.names[i]) : findEntry(native, path.names[i]);
        if (onDisk.isEmpty())
            break;
        found.names[i] = onDisk;
        native = joinNative(native, onDisk);
    }
    return found;
}

QString FileSystem::nativeOf(const Parts& path) const
{
    QString native = drives_.drive(path.drive).root;
    if (native.isEmpty())
        return QString();
    for (const QString& name : path.names)
        native = joinNative(native, name);
    return native;
}

QString FileSystem::toNative(const QString& programPath) const
{
    const auto path = absolute(programPath);
    return path ? nativeOf(resolved(*path)) : QString();
}

void FileSystem::loadDrivesFile(const QString& nativeFolder)
{
    const QString fileName = QDir(nativeFolder).filePath(QStringLiteral("Drives.txt"));
    if (pathKind(fileName) == PathKind::Missing)
        writeFileSafely(fileName, DriveMap::defaultDrivesText().toUtf8());
    DriveMap drives(drives_.home());
    if (const auto bytes = readRegularFile(fileName, kSettingsFileLimit)) {
        QStringDecoder decode(QStringDecoder::Utf8);
        drives.addFromText(decode(*bytes));
    }
    drives_ = drives;
}

bool FileSystem::chDir(const QString& programPath)
{
    const auto path = absolute(programPath);
    if (!path)
        return false;
    const Parts onDisk = resolved(*path);
    if (!QFileInfo(nativeOf(onDisk)).isDir())
        return false;
    current_ = QString(onDisk.drive) + u":\\" + onDisk.names.join(kSeparator);
    return true;
}

void FileSystem::chDirToFolderOf(const QString& nativeFile)
{
    chDir(toProgram(QFileInfo(nativeFile).absolutePath()));
}

QString FileSystem::dir(const QString& pathOrPattern) const
{
    if (pathOrPattern.isEmpty() || pathOrPattern.contains(u"://"))
        return QString();
    QString text = pathOrPattern;
    text.replace(u'/', kSeparator);
    qsizetype cut = text.lastIndexOf(kSeparator) + 1;
    if (cut == 0 && isDriveSpec(text))
        cut = 2;
    const auto folderPath = absolute(cut == 0 ? current_ : text.left(cut));
    const QString word = chopTrailing(text.mid(cut), u" ");
    if (!folderPath || word == u"." || word == u"..")
        return QString();
    QString name = chopTrailing(word, u" .");
    if (name.isEmpty())
        name = QStringLiteral("*.*");
    // The usual case, at the cost of one look: the file as it is spelled.
    Parts spelled = *folderPath;
    spelled.names.append(name);
    if (isNormalFile(nativeOf(spelled)))
        return name;
    const QString folder = nativeOf(resolved(*folderPath));
    if (folder.isEmpty())
        return QString();

    const QString literal = findEntry(folder, name);
    if (!literal.isEmpty() && isNormalFile(joinNative(folder, literal)))
        return literal;
    const QStringList tracks = cdTracksIn(*folderPath);
    for (const QString& track : tracks) {
        if (track.compare(name, Qt::CaseInsensitive) == 0)
            return track;
    }
    if (!hasWildcards(name))
        return QString();
    return withTracks(matchingFiles(folder, name), matchingNames(tracks, name)).value(0);
}

QStringList FileSystem::cdTracksIn(const Parts& folder) const
{
    if (!folder.names.isEmpty() || !cdTrackCounter_)
        return {};
    const QString device = drives_.drive(folder.drive).cdDevice;
    if (device.isEmpty())
        return {};
    const int count = std::min(cdTrackCounter_(device), kMaxCdTracks);
    QStringList names;
    for (int track = 1; track <= count; ++track)
        names.append(QStringLiteral("Track%1.cda").arg(track, 2, 10, QLatin1Char('0')));
    return names;
}

bool FileSystem::isCdTrack(const QString& programPath) const
{
    const auto path = absolute(programPath);
    if (!path || path->names.size() != 1)
        return false;
    const QStringList tracks = cdTracksIn(Parts{path->drive, {}});
    return tracks.contains(path->names.first(), Qt::CaseInsensitive);
}

bool FileSystem::isFile(const QString& programPath) const
{
    const QString native = toNative(programPath);
    return !native.isEmpty() && (isNormalFile(native) || isCdTrack(programPath));
}

bool FileSystem::isFolder(const QString& programPath) const
{
    const QString native = toNative(programPath);
    return !native.isEmpty() && QFileInfo(native).isDir();
}

bool FileSystem::isLink(const QString& programPath) const
{
    const QString native = toNative(programPath);
    return !native.isEmpty() && QFileInfo(native).isSymLink();
}

bool FileSystem::isSpecialFile(const QString& programPath) const
{
    const QString native = toNative(programPath);
    return !native.isEmpty() && pathKind(native) == PathKind::Other &&
           !isHiddenName(QFileInfo(native).fileName());
}

qint64 FileSystem::fileLength(const QString& programPath) const
{
    const QString native = toNative(programPath);
    const QFileInfo info(native);
    if (!native.isEmpty() && info.isFile())
        return info.size();
    return isCdTrack(programPath) ? kCdTrackFileLength : -1;
}

QStringList FileSystem::files(const QString& programFolder, const QString& pattern) const
{
    const auto folderPath = absolute(programFolder);
    const QString folder = folderPath ? nativeOf(resolved(*folderPath)) : QString();
    if (folder.isEmpty())
        return {};
    const QString wanted = pattern.isEmpty() ? QStringLiteral("*") : pattern;
    const QStringList tracks = matchingNames(cdTracksIn(*folderPath), wanted);
    if (tracks.isEmpty())
        return matchingFiles(folder, wanted);
    return withTracks(matchingFiles(folder, wanted), tracks);
}

QStringList FileSystem::folders(const QString& programFolder) const
{
    const QString folder = toNative(programFolder);
    if (folder.isEmpty())
        return {};
    const FolderEntries entries = readFolder(folder).value_or(FolderEntries());
    return sortedForListing(entries.folders + entries.linkedFolders);
}

FileSystem::FolderListing FileSystem::listFolder(const QString& programFolder,
                                                 const QStringList& patterns) const
{
    FolderListing listing;
    const auto folderPath = absolute(programFolder);
    if (!folderPath)
        return listing;
    // A walk names folders as they stand on disk: the folder as spelled is
    // read at once, and only a miss is looked for without regard to case.
    std::optional<FolderEntries> read = readFolder(nativeOf(*folderPath));
    if (!read) {
        const QString folder = nativeOf(resolved(*folderPath));
        read = folder.isEmpty() ? std::nullopt : readFolder(folder);
    }
    if (!read)
        return listing;
    FolderEntries& entries = *read;
    const NameMatcher matcher(patterns);
    entries.files.removeIf([&matcher](const QString& name) { return !matcher.matches(name); });
    QStringList tracks = cdTracksIn(*folderPath);
    tracks.removeIf([&matcher](const QString& track) { return !matcher.matches(track); });
    listing.files = withTracks(std::move(entries.files), tracks);
    listing.folders = sortedForListing(std::move(entries.folders));
    listing.linkedFolders = sortedForListing(std::move(entries.linkedFolders));
    return listing;
}

bool FileSystem::makeFolder(const QString& programPath)
{
    const QString native = toNative(programPath);
    return !native.isEmpty() && QDir().mkdir(native);
}

bool FileSystem::removeFolder(const QString& programPath)
{
    const QString native = toNative(programPath);
    return !native.isEmpty() && !QFileInfo(native).isSymLink() && QDir().rmdir(native);
}

bool FileSystem::isSameFile(const QString& programPathA, const QString& programPathB) const
{
    return sameFile(toNative(programPathA), toNative(programPathB));
}

bool FileSystem::copyFile(const QString& from, const QString& to)
{
    const QString source = toNative(from);
    const QString target = toNative(to);
    if (source.isEmpty() || target.isEmpty())
        return false;
    // A file is never copied onto itself: the target would be the source.
    if (sameFile(target, source))
        return false;
    // Staged beside the target, then renamed over it: the target is never
    // half-written. A source that is no regular file fails the copy, and so
    // does a target that is a folder or anything but a regular file.
    return copyBytes(source, target);
}

bool FileSystem::renameFile(const QString& from, const QString& to)
{
    if (to.mid(to.lastIndexOf(kSeparator) + 1).contains(u'/'))
        return false;
    const QString source = toNative(from);
    const auto targetPath = absolute(to);
    if (source.isEmpty() || !existsOrLink(source) || !targetPath || targetPath->names.isEmpty())
        return false;
    QString target = nativeOf(resolved(*targetPath));
    if (existsOrLink(target)) {
        // Only a change of case of the same entry goes on, to the name as given.
        const QString given = joinNative(QFileInfo(target).path(), targetPath->names.last());
        if (target != source || given == source)
            return false;
        target = given;
    }
    return QFile::rename(source, target);
}

bool FileSystem::deleteFile(const QString& programPath)
{
    const QString native = toNative(programPath);
    const QFileInfo info(native);
    if (native.isEmpty() || (!info.isSymLink() && (!info.exists() || info.isDir())))
        return false;
    return QFile::remove(native);
}

int FileSystem::attributes(const QString& programPath) const
{
    const QString native = toNative(programPath);
    const QFileInfo info(native);
    if (native.isEmpty() || !existsOrLink(native))
        return isCdTrack(programPath) ? 1 : -1;
    int value = 0;
    if (info.exists() && !(info.permissions() & QFileDevice::WriteOwner))
        value += 1;
    if (isHiddenName(info.fileName()))
        value += 2;
    if (info.isDir())
        value += 16;
    return value;
}

bool FileSystem::clearAttributes(const QString& programPath)
{
    const QString native = toNative(programPath);
    const QFileInfo info(native);
    if (native.isEmpty() || !info.exists())
        return false;
    return QFile::setPermissions(native, info.permissions() | QFileDevice::WriteOwner);
}

void FileSystem::addProtectedFolder(const QString& programPath)
{
    protected_.append(programPath);
}

bool FileSystem::isGuarded(const QString& nativeFolder) const
{
    QStringList guarded{drives_.home()};
    for (const QChar letter : drives_.letters())
        guarded.append(drives_.drive(letter).root);
    for (const QString& programPath : protected_)
        guarded.append(toNative(programPath));

    QStringList targets{nativeFolder};
    const QFileInfo info(nativeFolder);
    if (!info.isSymLink())
        targets.append(info.canonicalFilePath());
    for (const QString& folder : std::as_const(guarded)) {
        if (folder.isEmpty())
            continue;
        const QStringList forms{folder, QFileInfo(folder).canonicalFilePath()};
        for (const QString& form : forms) {
            for (const QString& target : std::as_const(targets)) {
                if (!form.isEmpty() && !target.isEmpty() && isInsideOrSame(form, target))
                    return true;
            }
        }
    }
    return false;
}

TreeDeleteResult FileSystem::deleteTree(const QString& programPath)
{
    const QString native = toNative(programPath);
    const QFileInfo info(native);
    if (native.isEmpty() || !info.isDir())
        return TreeDeleteResult::Missing;
    if (isGuarded(native))
        return TreeDeleteResult::Refused;
    if (info.isSymLink())
        return QFile::remove(native) ? TreeDeleteResult::Deleted : TreeDeleteResult::Failed;
    if (isMountPoint(native))
        return TreeDeleteResult::Refused;
    const QByteArray bytes = QFile::encodeName(native);
    const auto device = deviceOf(bytes);
    if (device && removeTree(std::filesystem::path(bytes.toStdString()), *device))
        return TreeDeleteResult::Deleted;
    return TreeDeleteResult::Failed;
}

} // namespace lumen
