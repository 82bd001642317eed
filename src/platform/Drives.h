// Drive letters of the program's own path form ("C:\Lumentas\RunFile.Lst").
// C: is the user's home folder and Z: the root; further letters, and CD
// devices for them, come from Drives.txt in the settings folder:
//   ' comment
//   D = /media/cdrom, /dev/sr0
//   E = /media/usb
// A line whose first non-blank character is "'" is a comment. The letter may
// be given with or without its colon and in either case; the folder must be
// absolute ("~" stands for the home). The CD device follows the last comma
// and must be a native path, so a comma inside a folder name is kept.
#pragma once

#include <QChar>
#include <QMap>
#include <QString>

namespace lumen {

struct Drive {
    QString root;     // native folder, absolute, without a trailing "/" (but "/" itself)
    QString cdDevice; // native device of an audio CD drive, or empty
};

class DriveMap {
public:
    // C: = home, Z: = "/".
    explicit DriveMap(const QString& nativeHome);

    // Letters are kept in capitals; a letter given again replaces the old one.
    void setDrive(QChar letter, const Drive& drive);
    // Reads a Drives.txt text; lines that don't parse are passed over.
    void addFromText(const QString& drivesText);
    static QString defaultDrivesText();

    bool hasDrive(QChar letter) const;
    Drive drive(QChar letter) const; // empty Drive when unknown
    QList<QChar> letters() const;    // in alphabetical order
    QString home() const { return home_; }

    // Native path to program form: the longest matching root wins, so
    // /home/me/a.jpg is C:\a.jpg and /srv/a.jpg is Z:\srv\a.jpg; a root
    // matches only whole folder names (/home/meat is not under /home/me).
    // A relative path is taken against the process's working folder first;
    // an empty path gives "". Equal roots go to the first letter.
    QString toProgram(const QString& nativePath) const;

    // The native root of a program-form path's drive ("C:\x" -> "/home/me"),
    // or empty when the path has no known drive letter.
    QString rootOf(const QString& programPath) const;

private:
    QString home_;
    QMap<QChar, Drive> drives_;
};

} // namespace lumen
