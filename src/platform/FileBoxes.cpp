#include "platform/FileBoxes.h"

#include "platform/FileSystem.h"

#include <QFileInfo>
#include <QSet>

namespace lumen {
namespace {

QString rootOf(const QString& path)
{
    return path.left(2).toUpper() + QLatin1Char('\\');
}

QString joinPath(const QString& folder, const QString& name)
{
    if (folder.endsWith(QLatin1Char('\\')))
        return folder + name;
    return folder + QLatin1Char('\\') + name;
}

// "C:\a\b" -> ["C:\", "C:\a", "C:\a\b"]
QStringList chainOf(const QString& path)
{
    QStringList chain{rootOf(path)};
    const QStringList parts = path.mid(3).split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    QString walked = chain.first();
    for (const QString& part : parts) {
        walked = joinPath(walked, part);
        chain << walked;
    }
    return chain;
}

constexpr int kPathRole = Qt::UserRole + 1;

} // namespace

DriveListBox::DriveListBox(FileSystem& fs, const QString& name, QWidget* parent)
    : QComboBox(parent)
    , fs_(fs)
{
    setObjectName(name);
    refresh();
    connect(this, &QComboBox::currentIndexChanged, this, &DriveListBox::driveChanged);
}

QString DriveListBox::drive() const
{
    return currentText().left(2);
}

void DriveListBox::setDrive(const QString& drive)
{
    const QString letter = drive.left(1).toLower();
    for (int i = 0; i < count(); ++i) {
        if (itemText(i).startsWith(letter)) {
            setCurrentIndex(i);
            return;
        }
    }
}

void DriveListBox::refresh()
{
    const QSignalBlocker block(this);
    const QString keep = drive();
    clear();
    for (QChar letter : fs_.drives().letters()) {
        addItem(QString(letter.toLower()) + QStringLiteral(": [") +
                fs_.drives().drive(letter).root + QLatin1Char(']'));
    }
    if (!keep.isEmpty())
        setDrive(keep);
}

DirListBox::DirListBox(FileSystem& fs, const QString& name, QWidget* parent)
    : QListWidget(parent)
    , fs_(fs)
{
    setObjectName(name);
    connect(this, &QListWidget::itemDoubleClicked, this, &DirListBox::openRow);
    connect(this, &QListWidget::itemActivated, this, &DirListBox::openRow);
}

void DirListBox::setPath(const QString& path)
{
    QString folder = path;
    if (folder.size() == 2 && folder.endsWith(QLatin1Char(':')))
        folder += QLatin1Char('\\');
    if (!fs_.isFolder(folder))
        return;
    while (folder.size() > 3 && folder.endsWith(QLatin1Char('\\')))
        folder.chop(1);
    folder[0] = folder[0].toUpper();
    const bool changed = folder.compare(path_, Qt::CaseInsensitive) != 0;
    path_ = folder;
    refresh();
    if (changed)
        Q_EMIT pathChanged();
}

void DirListBox::refresh()
{
    clear();
    if (path_.isEmpty())
        return;
    const QStringList chain = chainOf(path_);
    int depth = 0;
    for (const QString& level : chain) {
        const QString label =
            depth == 0 ? level : level.mid(level.lastIndexOf(QLatin1Char('\\')) + 1);
        auto* item = new QListWidgetItem(QString(depth * 2, QLatin1Char(' ')) + label, this);
        item->setData(kPathRole, level);
        ++depth;
    }
    setCurrentRow(int(chain.size()) - 1);
    for (const QString& name : fs_.folders(path_)) {
        auto* item = new QListWidgetItem(QString(depth * 2, QLatin1Char(' ')) + name, this);
        item->setData(kPathRole, joinPath(path_, name));
    }
}

void DirListBox::openRow(QListWidgetItem* item)
{
    if (item)
        setPath(item->data(kPathRole).toString());
}

FileListBox::FileListBox(FileSystem& fs, const QString& name, QWidget* parent)
    : QListWidget(parent)
    , fs_(fs)
{
    setObjectName(name);
}

void FileListBox::setPath(const QString& path)
{
    path_ = path;
    refresh();
}

void FileListBox::setPattern(const QString& pattern)
{
    pattern_ = pattern;
    refresh();
}

void FileListBox::setExecutablesOnly(bool on)
{
    executablesOnly_ = on;
    refresh();
}

QString FileListBox::fileName() const
{
    const QListWidgetItem* item = currentItem();
    return item ? item->text() : QString();
}

void FileListBox::refresh()
{
    clear();
    if (path_.isEmpty())
        return;
    // One pattern gives the names in listing order already.
    QStringList names = executablesOnly_ ? executableNames() : matchingNames();
    if (executablesOnly_ || pattern_.contains(QLatin1Char(';')))
        names.sort(Qt::CaseInsensitive);
    addItems(names);
}

QStringList FileListBox::matchingNames() const
{
    const QStringList patterns = pattern_.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    if (patterns.size() == 1)
        return fs_.files(path_, patterns.first().trimmed());
    QStringList names;
    QSet<QString> seen;
    for (const QString& pattern : patterns) {
        for (const QString& name : fs_.files(path_, pattern.trimmed())) {
            if (!seen.contains(name)) {
                seen.insert(name);
                names << name;
            }
        }
    }
    return names;
}

QStringList FileListBox::executableNames() const
{
    constexpr auto kExecBits =
        QFileDevice::ExeOwner | QFileDevice::ExeGroup | QFileDevice::ExeOther;
    QStringList names;
    for (const QString& name : fs_.files(path_, QStringLiteral("*.*"))) {
        const QFileInfo info(fs_.toNative(joinPath(path_, name)));
        if (info.permissions() & kExecBits)
            names << name;
    }
    return names;
}

} // namespace lumen
