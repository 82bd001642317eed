#include "platform/Drives.h"

#include <QDir>

#include <optional>

namespace lumen {

namespace {

// Absolute, clean, no trailing "/" except for the root itself.
QString cleanRoot(const QString& nativeFolder)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(nativeFolder));
}

bool isDriveLetter(QChar letter)
{
    const QChar upper = letter.toUpper();
    return upper >= u'A' && upper <= u'Z';
}

// Removes blanks, tabs and the CR of a CR LF line at both ends.
QString trimmedField(const QString& text)
{
    return text.trimmed();
}

// "~" and "~/x" in Drives.txt stand for the home folder.
QString expandHome(const QString& path, const QString& home)
{
    if (path == u"~")
        return home;
    if (path.startsWith(u"~/"))
        return home + path.mid(1);
    return path;
}

// The part of `path` below `root`, or nothing when `path` is not inside it.
// A root matches only at a component boundary: /home/meat is not under /home/me.
std::optional<QString> below(const QString& path, const QString& root)
{
    if (path == root)
        return QString();
    if (root == u"/")
        return path.mid(1);
    if (path.startsWith(root) && path.at(root.size()) == u'/')
        return path.mid(root.size() + 1);
    return std::nullopt;
}

} // namespace

DriveMap::DriveMap(const QString& nativeHome)
    : home_(cleanRoot(nativeHome))
{
    drives_.insert(u'C', Drive{home_, QString()});
    drives_.insert(u'Z', Drive{QStringLiteral("/"), QString()});
}

void DriveMap::setDrive(QChar letter, const Drive& drive)
{
    if (!isDriveLetter(letter) || drive.root.isEmpty())
        return;
    drives_.insert(letter.toUpper(), Drive{cleanRoot(drive.root), drive.cdDevice});
}

void DriveMap::addFromText(const QString& drivesText)
{
    const QStringList lines = drivesText.split(u'\n');
    for (const QString& rawLine : lines) {
        const QString line = trimmedField(rawLine);
        if (line.isEmpty() || line.startsWith(u'\''))
            continue;
        const qsizetype equals = line.indexOf(u'=');
        if (equals < 0)
            continue;
        QString letterText = trimmedField(line.left(equals));
        if (letterText.endsWith(u':'))
            letterText.chop(1);
        if (letterText.size() != 1 || !isDriveLetter(letterText.at(0)))
            continue;

        // The device follows the last comma when it is a native path; a
        // comma in the folder name alone is kept.
        QString root = trimmedField(line.mid(equals + 1));
        QString device;
        const qsizetype comma = root.lastIndexOf(u',');
        if (comma >= 0 && trimmedField(root.mid(comma + 1)).startsWith(u'/')) {
            device = trimmedField(root.mid(comma + 1));
            root = trimmedField(root.left(comma));
        }
        root = expandHome(root, home_);
        if (!root.startsWith(u'/'))
            continue;
        setDrive(letterText.at(0), Drive{root, device});
    }
}

QString DriveMap::defaultDrivesText()
{
    return QStringLiteral("' ドライブ文字の割り当て\n"
                          "' C: はホームフォルダー、Z: はルート (/) です。\n"
                          "' ほかのドライブは「文字 = フォルダー」の一行で加えます。\n"
                          "' 音楽CDのドライブは、カンマのあとに装置名を書きます。\n"
                          "' 先頭が ' の行は注釈として読み飛ばされます。例:\n"
                          "'D = /media/cdrom, /dev/sr0\n"
                          "'E = /media/usb\n");
}

bool DriveMap::hasDrive(QChar letter) const
{
    return drives_.contains(letter.toUpper());
}

Drive DriveMap::drive(QChar letter) const
{
    return drives_.value(letter.toUpper());
}

QList<QChar> DriveMap::letters() const
{
    return drives_.keys();
}

QString DriveMap::toProgram(const QString& nativePath) const
{
    if (nativePath.isEmpty())
        return QString();
    const QString path = cleanRoot(nativePath);
    QChar bestLetter;
    QString bestRest;
    qsizetype bestLength = -1;
    for (auto it = drives_.cbegin(); it != drives_.cend(); ++it) {
        const std::optional<QString> rest = below(path, it->root);
        if (rest && it->root.size() > bestLength) {
            bestLength = it->root.size();
            bestLetter = it.key();
            bestRest = *rest;
        }
    }
    if (bestLength < 0)
        return QString();
    return QString(bestLetter) + u":\\" + QString(bestRest).replace(u'/', u'\\');
}

QString DriveMap::rootOf(const QString& programPath) const
{
    if (programPath.size() < 2 || programPath.at(1) != u':' || !isDriveLetter(programPath.at(0)))
        return QString();
    return drive(programPath.at(0)).root;
}

} // namespace lumen
