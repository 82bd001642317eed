// The three file boxes that the program's windows browse with: a drive box,
// a folder box and a file box, all in program-form paths over the
// FileSystem's drives. Setting a box's drive or path tells the others
// through signals, as the classic boxes' Change events did.
#pragma once

#include <QComboBox>
#include <QListWidget>

namespace lumen {

class FileSystem;

// Drive1: one row per drive letter, "c: [/home/me]".
class DriveListBox : public QComboBox {
    Q_OBJECT
public:
    DriveListBox(FileSystem& fs, const QString& name, QWidget* parent = nullptr);

    QString drive() const;               // "c:" as the box shows it
    void setDrive(const QString& drive); // "C:", "c:\x" or "d: [...]"; unknown letters are ignored
    void refresh();                      // reads the drives again

Q_SIGNALS:
    void driveChanged();

private:
    FileSystem& fs_;
};

// Dir1: the folders from the drive's root down to the path, then the
// folders in it. A double click opens a folder. Hidden folders aren't shown.
class DirListBox : public QListWidget {
    Q_OBJECT
public:
    DirListBox(FileSystem& fs, const QString& name, QWidget* parent = nullptr);

    QString path() const { return path_; } // "C:\pics", a root as "C:\"
    void setPath(const QString& path);     // unknown folders are ignored
    void refresh();

Q_SIGNALS:
    void pathChanged();

private:
    void openRow(QListWidgetItem* item);
    FileSystem& fs_;
    QString path_;
};

// File1: the files of a folder that match the pattern ("*.Lst", "*.jpg;*.bmp").
// A box set to executables only lists the files with an exec bit instead,
// whatever their names: a "*.exe" box keeps its pattern for what it shows
// and lists the programs of the folder.
class FileListBox : public QListWidget {
    Q_OBJECT
public:
    FileListBox(FileSystem& fs, const QString& name, QWidget* parent = nullptr);

    QString path() const { return path_; }
    void setPath(const QString& path);
    QString pattern() const { return pattern_; }
    void setPattern(const QString& pattern);
    bool executablesOnly() const { return executablesOnly_; }
    void setExecutablesOnly(bool on); // off by default
    QString fileName() const;         // the selected name, "" when none
    void refresh();

private:
    QStringList matchingNames() const;
    QStringList executableNames() const;

    FileSystem& fs_;
    QString path_;
    QString pattern_ = QStringLiteral("*.*");
    bool executablesOnly_ = false;
};

} // namespace lumen
