// The program's path form over the disk: drive letters and Drives.txt, names
// found ignoring case (the folder index keeps up with changes), the current
// folder, the tracks of an audio CD, and file work that must not reach too far.
#include "platform/FileSystem.h"

#include "platform/FolderIndex.h"
#include "support/Fetch.h"
#include "support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace lumen;
using lumen::test::TestHome;

Q_DECLARE_METATYPE(TreeDeleteResult)

namespace {

const QString kHome = QStringLiteral("/home/me");

DriveMap mapWith(const QString& drivesText)
{
    DriveMap drives(kHome);
    drives.addFromText(drivesText);
    return drives;
}

} // namespace

class TestFileSystem : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestHome> home_;
    int tracks_ = 5;
    FileSystem& fs() { return home_->fs; }

    // "x/" is a folder, anything else a file holding its own name.
    void makeEntries(const QStringList& entries)
    {
        for (const QString& entry : entries) {
            if (entry.endsWith(u'/'))
                home_->makeFolder(entry);
            else
                home_->writeFile(entry, entry.toUtf8());
        }
    }
    // "~" stands for the home in expected native paths.
    QString expand(QString text) const
    {
        if (text.startsWith(u'~'))
            text.replace(0, 1, home_->path());
        return text;
    }
    void link(const QString& target, const QString& linkName) const
    {
        QVERIFY(QFile::link(expand(target), home_->native(linkName)));
    }
    bool gone(const QString& relative) const
    {
        const QFileInfo info(home_->native(relative));
        return !info.exists() && !info.isSymLink();
    }
    // D: is a CD drive over "cdrom" holding a disc of tracks_ tracks; E: has no device.
    void addCdDrive()
    {
        makeEntries({"cdrom/a.txt", "cdrom/sub/b.txt", "usb/"});
        fs().drives().addFromText(QStringLiteral("D = %1, /dev/sr0\nE = %2\n")
                                      .arg(home_->native("cdrom"), home_->native("usb")));
        fs().setCdTrackCounter([this](const QString&) { return tracks_; });
    }

private Q_SLOTS:
    void init()
    {
        home_ = std::make_unique<TestHome>();
        tracks_ = 5;
    }
    void cleanup() { home_.reset(); }

    void driveToProgram_data()
    {
        QTest::addColumn<QString>("drivesText");
        QTest::addColumn<QString>("native");
        QTest::addColumn<QString>("program");
        const auto row = [](const char* name, const char* text, const char* native,
                            const char* program) {
            QTest::newRow(name) << QString(text) << QString(native) << QString(program);
        };
        row("outside home", "", "/srv/a.jpg", "Z:\\srv\\a.jpg");
        row("name only starting like home", "", "/home/meat/a.jpg", "Z:\\home\\meat\\a.jpg");
        row("longest root wins in home", "E = /home/me/usb", "/home/me/usb/x.jpg", "E:\\x.jpg");
        row("boundary beside an extra root", "E = /home/me/usb", "/home/me/usbx/x.jpg",
            "C:\\usbx\\x.jpg");
        row("equal roots: first letter", "D = /home/me", "/home/me/a.jpg", "C:\\a.jpg");
    }
    void driveToProgram()
    {
        QCOMPARE(mapWith(FETCH(QString, drivesText)).toProgram(FETCH(QString, native)),
                 FETCH(QString, program));
    }

    void drivesText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QChar>("letter");
        QTest::addColumn<bool>("known");
        QTest::addColumn<QString>("root");
        QTest::addColumn<QString>("device");
        const auto row = [](const char* tag, const QString& text, char letter, bool known,
                            const QString& root, const QString& device) {
            QTest::newRow(tag) << text << QChar(letter) << known << root << device;
        };
        row("with CD device", "D = /media/cdrom, /dev/sr0", 'D', true, "/media/cdrom", "/dev/sr0");
        row("small letter, no blanks", "d=/media/cdrom", 'D', true, "/media/cdrom", "");
        row("CR LF lines", "' x\r\nE = /media/usb\r\n", 'E', true, "/media/usb", "");
        row("comma in folder kept", "G = /media/a,b", 'G', true, "/media/a,b", "");
        row("tilde is home", "H = ~/usb", 'H', true, "/home/me/usb", "");
        row("given again replaces", "D = /a\nD = /b", 'D', true, "/b", "");
        row("comment", "'D = /media/cdrom", 'D', false, "", "");
        row("two letters", "DD = /x", 'D', false, "", "");
        row("bad line among good", "junk\nE = /media/usb\n= /x", 'E', true, "/media/usb", "");
        row("home stays", "junk", 'C', true, kHome, "");
    }
    void drivesText()
    {
        const QChar letter = FETCH(QChar, letter);
        const DriveMap drives = mapWith(FETCH(QString, text));
        QCOMPARE(drives.hasDrive(letter), FETCH(bool, known));
        QCOMPARE(drives.hasDrive(letter.toLower()), FETCH(bool, known));
        QCOMPARE(drives.drive(letter).root, FETCH(QString, root));
        QCOMPARE(drives.drive(letter).cdDevice, FETCH(QString, device));
    }

    void driveLettersInOrder()
    {
        DriveMap drives = mapWith("e = /media/usb\nD = /media/cdrom\n1 = /x");
        drives.setDrive(u'b', Drive{"/mnt/b", QString()});
        drives.setDrive(u'%', Drive{"/mnt/x", QString()});
        QCOMPARE(drives.letters(), (QList<QChar>{u'B', u'C', u'D', u'E', u'Z'}));
        QCOMPARE(drives.toProgram("/mnt/b/a.jpg"), QStringLiteral("B:\\a.jpg"));
    }

    void drivesFile()
    {
        // The first load writes the default: all comments, whose example
        // lines become real drives when the quote is taken off.
        home_->makeFolder("run");
        fs().loadDrivesFile(home_->native("run"));
        const QString text = DriveMap::defaultDrivesText();
        QCOMPARE(home_->readFile("run/Drives.txt"), text.toUtf8());
        QCOMPARE(fs().drives().letters(), (QList<QChar>{u'C', u'Z'}));
        QString uncommented;
        for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
            QVERIFY2(line.startsWith(u'\''), qPrintable(line));
            if (line.size() > 1 && line.at(1).isLetter() && line.at(1).unicode() < 128)
                uncommented += line.mid(1) + u'\n';
        }
        const DriveMap examples = mapWith(uncommented);
        QCOMPARE(examples.drive(u'D').root, QStringLiteral("/media/cdrom"));
        QCOMPARE(examples.drive(u'D').cdDevice, QStringLiteral("/dev/sr0"));
        QVERIFY(examples.hasDrive(u'E'));

        makeEntries({"usb/a.jpg"});
        home_->writeFile("run/Drives.txt",
                         "\xEF\xBB\xBF' drives\r\nE = " + QFile::encodeName(home_->native("usb")) +
                             "\r\nD = /media/cdrom, /dev/sr0\r\n");
        fs().loadDrivesFile(home_->native("run"));
        QCOMPARE(fs().toNative("e:\\A.JPG"), home_->native("usb/a.jpg"));
        QCOMPARE(fs().drives().drive(u'D').cdDevice, QStringLiteral("/dev/sr0"));

        // Loading again starts from the home: a line taken out takes its drive away.
        home_->writeFile("run/Drives.txt", "D = /media/cdrom\n");
        fs().loadDrivesFile(home_->native("run"));
        QCOMPARE(fs().drives().letters(), (QList<QChar>{u'C', u'D', u'Z'}));
        QCOMPARE(fs().toNative("C:\\usb"), home_->native("usb"));
    }

    void toNative_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("native");
        QTest::addColumn<QString>("cd");      // a folder to change to first
        QTest::addColumn<QString>("current"); // the current folder then
        const auto row = [](const char* name, const QStringList& entries, const char* program,
                            const char* native, const char* cd = "", const char* current = "C:\\") {
            QTest::newRow(name) << entries << QString::fromUtf8(program)
                                << QString::fromUtf8(native) << QString(cd) << QString(current);
        };
        row("capitals find small letters", {"pics/a.jpg"}, "C:\\PICS\\A.JPG", "~/pics/a.jpg");
        row("exact name first", {"A.JPG", "a.jpg"}, "C:\\a.jpg", "~/a.jpg");
        row("first in byte order", {"a.JPG", "A.jpg"}, "C:\\A.JPG", "~/A.jpg");
        row("new parts keep their case", {"pics/"}, "c:\\PICS\\New\\B.JPG", "~/pics/New/B.JPG");
        row("below a missing part", {"x/a.jpg"}, "C:\\y\\X\\A.JPG", "~/y/X/A.JPG");
        row("slash as backslash", {"pics/a.jpg"}, "C:/pics/a.jpg", "~/pics/a.jpg");
        row("trailing blank", {"MPLAYER2.EXE"}, "C:\\MPLAYER2.EXE ", "~/MPLAYER2.EXE");
        row("dots, stopping at the drive root", {"pics/a.jpg"}, "C:\\..\\pics\\.\\x\\..\\a.jpg",
            "~/pics/a.jpg");
        row("root of the current drive", {"a.jpg"}, "\\a.jpg", "~/a.jpg");
        row("address", {}, "http://example.com/a.jpg", "");
        const QStringList pics{"pics/a.jpg", "pics/sub/b.jpg"};
        row("cd: case from the disk", pics, "SUB\\b.jpg", "~/pics/sub/b.jpg", "c:\\PICS\\",
            "C:\\pics");
        row("cd: relative folder", pics, "..\\c.jpg", "~/pics/c.jpg", "pics\\sub", "C:\\pics\\sub");
        row("cd: drive-relative", pics, "C:sub", "~/pics/sub", "pics", "C:\\pics");
        row("cd: a file", pics, "a.jpg", "~/a.jpg", "C:\\pics\\a.jpg", "C:\\");
    }
    void toNative()
    {
        makeEntries(FETCH(QStringList, entries));
        const QString cd = FETCH(QString, cd);
        const QString current = FETCH(QString, current);
        if (!cd.isEmpty()) // a change that is refused stays at the drive's root
            QCOMPARE(fs().chDir(cd), current != u"C:\\");
        QCOMPARE(fs().curDir(), current);
        QCOMPARE(fs().toNative(FETCH(QString, program)), expand(FETCH(QString, native)));
    }

    void dir_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("name");
        const auto row = [](const char* name, const QStringList& entries, const char* path,
                            const char* found) {
            QTest::newRow(name) << entries << QString(path) << QString(found);
        };
        row("name as on disk", {"pics/a.jpg"}, "C:\\PICS\\A.JPG", "a.jpg");
        row("dot name hidden", {".x.jpg"}, "C:\\.x.jpg", "");
        row("folder name", {"pics/a.jpg"}, "C:\\pics", "");
        row("first in order", {"b.jpg", "A.jpg", "c.jpg"}, "C:\\*.jpg", "A.jpg");
        row("question mark is one character", {"aaa.jpg", "ab.jpg"}, "C:\\a?.JPG", "ab.jpg");
        row("literal name before wildcard", {"a!.jpg", "a*.jpg"}, "C:\\a*.jpg", "a*.jpg");
        row("no character classes", {"[a]x.jpg"}, "C:\\[a]*.jpg", "[a]x.jpg");
        row("star dot star without dot", {"README"}, "C:\\*.*", "README");
        row("trailing backslash lists", {"pics/b.jpg"}, "C:\\pics\\", "b.jpg");
        row("backslash in a name", {"a\\b.jpg"}, "C:\\*.jpg", "");
        row("unknown drive", {}, "Q:\\a.jpg", "");
    }
    void dir()
    {
        makeEntries(FETCH(QStringList, entries));
        QCOMPARE(fs().dir(FETCH(QString, path)), FETCH(QString, name));
    }

    // What "photo.jpg" finds after a change made once the folder was read.
    void folderIndexKeepsUp_data()
    {
        QTest::addColumn<QString>("change");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("another case made")
            << "make PHOTO.jpg" << QStringList{"PHOTO.jpg", "Photo.JPG"};
        QTest::newRow("removed") << "remove Photo.JPG" << QStringList();
        QTest::newRow("renamed") << "rename Photo.JPG photo.Jpg" << QStringList{"photo.Jpg"};
        QTest::newRow("folder replaced") << "replace" << QStringList{"PHOTO.JPG"};
    }
    void folderIndexKeepsUp()
    {
        const QString folder = home_->native("pics");
        makeEntries({"pics/Photo.JPG", "pics/other.png"});
        FolderIndex& index = FolderIndex::instance();
        QCOMPARE(index.entriesIgnoringCase(folder, "photo.jpg"), QStringList{"Photo.JPG"});

        const QStringList change = FETCH(QString, change).split(' ', Qt::SkipEmptyParts);
        if (change.value(0) == "make") {
            makeEntries({"pics/" + change[1]});
        } else if (change.value(0) == "remove") {
            QVERIFY(QFile::remove(folder + "/" + change[1]));
        } else if (change.value(0) == "rename") {
            QVERIFY(QFile::rename(folder + "/" + change[1], folder + "/" + change[2]));
        } else if (change.value(0) == "replace") {
            QVERIFY(QDir(folder).removeRecursively());
            makeEntries({"pics/PHOTO.JPG", "pics/other.png"});
        }
        QStringList found = index.entriesIgnoringCase(folder, "photo.jpg");
        found.sort();
        QCOMPARE(found, FETCH(QStringList, found));
        QCOMPARE(index.entriesIgnoringCase(folder, "OTHER.PNG"), QStringList{"other.png"});
    }

    void queriesAndDelete_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("isFile");
        QTest::addColumn<bool>("isFolder");
        QTest::addColumn<bool>("isLink");
        QTest::addColumn<qint64>("length");
        QTest::addColumn<bool>("deleted"); // by deleteFile; a link goes, never its target
        const auto row = [](const char* name, const char* path, bool isFile, bool isFolder,
                            bool isLink, qint64 length, bool deleted) {
            QTest::newRow(name) << QString(path) << isFile << isFolder << isLink << length
                                << deleted;
        };
        row("dot file", "C:\\.x.jpg", false, false, false, 6, true);
        row("folder", "C:\\pics", false, true, false, -1, false);
        row("linked folder", "C:\\linked", false, true, true, -1, true);
        row("linked file", "C:\\b.jpg", true, false, true, 10, true);
        row("broken link", "C:\\gone.jpg", false, false, true, -1, true);
    }
    void queriesAndDelete()
    {
        const QString path = FETCH(QString, path);
        makeEntries({"pics/a.jpg", ".x.jpg"});
        link("~/pics", "linked");
        link("~/pics/a.jpg", "b.jpg");
        link("~/nowhere.jpg", "gone.jpg");
        QCOMPARE(fs().isFile(path), FETCH(bool, isFile));
        QCOMPARE(fs().isFolder(path), FETCH(bool, isFolder));
        QCOMPARE(fs().isLink(path), FETCH(bool, isLink));
        QCOMPARE(fs().fileLength(path), FETCH(qint64, length));
        QCOMPARE(fs().deleteFile(path), FETCH(bool, deleted));
        QCOMPARE(gone(path.mid(3)), FETCH(bool, deleted));
        QCOMPARE(home_->readFile("pics/a.jpg"), QByteArray("pics/a.jpg"));
    }

    // "TrackNN.cda" files at the root of a CD drive, counted from the disc.
    void cdTracks_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("found");
        QTest::addColumn<qint64>("length"); // -1: no file
        QTest::addColumn<int>("attributes");
        const auto row = [](const char* name, const char* path, const char* found, qint64 length,
                            int attributes) {
            QTest::newRow(name) << QString(path) << QString(found) << length << attributes;
        };
        row("the last track", "D:\\Track05.cda", "Track05.cda", 44, 1);
        row("another case", "d:\\TRACK03.CDA", "Track03.cda", 44, 1);
        row("past the disc's end", "D:\\Track06.cda", "", -1, -1);
        row("one digit is not the name", "D:\\Track3.cda", "", -1, -1);
        row("a drive without a device", "E:\\Track01.cda", "", -1, -1);
        row("a real file", "D:\\a.txt", "a.txt", 11, 0);
    }
    void cdTracks()
    {
        addCdDrive();
        const QString path = FETCH(QString, path);
        const qint64 length = FETCH(qint64, length);
        QCOMPARE(fs().dir(path), FETCH(QString, found));
        QCOMPARE(fs().isFile(path), length >= 0);
        QCOMPARE(fs().fileLength(path), length);
        QCOMPARE(fs().attributes(path), FETCH(int, attributes));
        QVERIFY(!fs().isFolder(path));
    }

    void cdTrackListings()
    {
        addCdDrive();
        QStringList tracks{"Track01.cda", "Track02.cda", "Track03.cda", "Track04.cda",
                           "Track05.cda"};
        QCOMPARE(fs().dir("D:\\"), QStringLiteral("a.txt"));
        QCOMPARE(fs().files("D:\\"), QStringList{"a.txt"} + tracks);
        QCOMPARE(fs().files("D:\\", "*.CDA"), tracks);
        const FileSystem::FolderListing listing = fs().listFolder("D:\\", {"*.cda"});
        QCOMPARE(listing.files, tracks);
        QCOMPARE(listing.folders, QStringList{"sub"});

        // A real file of a track's name is listed once, as it is on the disc.
        home_->writeFile("cdrom/track02.CDA", "real");
        tracks[1] = "track02.CDA";
        QCOMPARE(fs().files("D:\\", "*.cda"), tracks);
        QCOMPARE(fs().listFolder("D:\\", {"*.cda"}).files, tracks);
        QCOMPARE(fs().dir("D:\\Track02.cda"), QStringLiteral("track02.CDA"));
        QCOMPARE(fs().fileLength("D:\\Track02.cda"), qint64(4));

        // No disc, or no way to count: only real files.
        tracks_ = 0;
        QCOMPARE(fs().dir("D:\\Track01.cda"), QString());
        QCOMPARE(fs().files("D:\\"), (QStringList{"a.txt", "track02.CDA"}));
        tracks_ = 5;
        fs().setCdTrackCounter({});
        QCOMPARE(fs().dir("D:\\Track01.cda"), QString());
        QCOMPARE(fs().files("D:\\", "*.cda"), QStringList{"track02.CDA"});
    }

    void listFolder()
    {
        makeEntries({"top/C.jpg", "top/a.jpg", "top/b.BMP", "top/README", "top/.h.jpg",
                     "top/x\\y.jpg", "top/Sub/", "top/alpha/", "top/.git/", "elsewhere/",
                     "elsewhere/f.jpg"});
        link("~/elsewhere", "top/zlinked");
        link("~/elsewhere", "top/Blinked");
        link("~/elsewhere/f.jpg", "top/to-file.jpg");
        link("~/gone", "top/dangling.jpg");

        // Two patterns, each name once.
        const FileSystem::FolderListing listing =
            fs().listFolder("C:\\top", {"*.JPG", "a*", "readme"});
        QCOMPARE(listing.files, (QStringList{"a.jpg", "C.jpg", "README", "to-file.jpg"}));
        QCOMPARE(listing.folders, (QStringList{"alpha", "Sub"}));
        QCOMPARE(listing.linkedFolders, (QStringList{"Blinked", "zlinked"}));

        const FileSystem::FolderListing missing = fs().listFolder("C:\\none", {"*.*"});
        QVERIFY(missing.files.isEmpty() && missing.folders.isEmpty());
    }

    void namesThatAreNotUtf8()
    {
        // Names written by a CP932 system: 0x83 0x74 ("フ") isn't UTF-8.
        makeEntries({"old/ok.txt", "old/good/"});
        const QByteArray old = QFile::encodeName(home_->native("old"));
        const int fd =
            ::open(QByteArray(old + "/\x83\x74.txt").constData(), O_WRONLY | O_CREAT, 0644);
        QVERIFY(fd >= 0);
        ::close(fd);
        QCOMPARE(::mkdir(QByteArray(old + "/\x83\x75").constData(), 0755), 0);

        QCOMPARE(fs().files("C:\\old"), QStringList{"ok.txt"});
        QCOMPARE(fs().folders("C:\\old"), QStringList{"good"});
        const FileSystem::FolderListing listing = fs().listFolder("C:\\old", {"*.*"});
        QCOMPARE(listing.files, QStringList{"ok.txt"});
        QCOMPARE(listing.folders, QStringList{"good"});
        QCOMPARE(fs().dir("C:\\old\\\uFFFD.txt"), QString());
        QCOMPARE(fs().deleteTree("C:\\old"), TreeDeleteResult::Deleted);
        QVERIFY(!home_->exists("old"));
    }

    void copyFile_data()
    {
        QTest::addColumn<QString>("to");
        QTest::addColumn<bool>("copied");
        QTest::addColumn<QString>("target"); // native, under home
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("replaces, found ignoring case")
            << "C:\\OLD.JPG" << true << "old.jpg" << QByteArray("source");
        QTest::newRow("onto itself: passed over")
            << "C:\\a.jpg" << false << "a.jpg" << QByteArray("source");
        QTest::newRow("onto a folder") << "C:\\pics" << false << "old.jpg" << QByteArray("old");
    }
    void copyFile()
    {
        home_->writeFile("a.jpg", "source");
        home_->writeFile("old.jpg", "old");
        home_->makeFolder("pics");
        QCOMPARE(fs().copyFile("C:\\A.JPG", FETCH(QString, to)), FETCH(bool, copied));
        QCOMPARE(home_->readFile(FETCH(QString, target)), FETCH(QByteArray, bytes));
        QCOMPARE(home_->readFile("a.jpg"), QByteArray("source"));
        QCOMPARE(QDir(home_->path()).entryList(QDir::Files | QDir::Hidden),
                 (QStringList{"a.jpg", "old.jpg"})); // no temporary file left over
    }

    void renameFile_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("from");
        QTest::addColumn<QString>("to");
        QTest::addColumn<bool>("renamed");
        QTest::addColumn<QStringList>("present");
        QTest::addColumn<QStringList>("absent");
        const auto row = [](const char* name, const QStringList& entries, const char* from,
                            const char* to, bool renamed, const QStringList& present,
                            const QStringList& absent) {
            QTest::newRow(name) << entries << QString(from) << QString(to) << renamed << present
                                << absent;
        };
        row("move into a folder", {"a.jpg", "Sub/"}, "C:\\A.JPG", "C:\\SUB\\c.jpg", true,
            {"Sub/c.jpg"}, {"a.jpg", "SUB"});
        row("target exists in other case", {"a.jpg", "B.JPG"}, "C:\\a.jpg", "C:\\b.jpg", false,
            {"a.jpg", "B.JPG"}, {"b.jpg"});
        row("change of case", {"a.jpg"}, "C:\\a.jpg", "C:\\A.JPG", true, {"A.JPG"}, {"a.jpg"});
        row("onto itself", {"a.jpg"}, "C:\\a.jpg", "C:\\a.jpg", false, {"a.jpg"}, {});
        row("slash in the new name", {"a.jpg", "x/"}, "C:\\a.jpg", "C:\\x/b.jpg", false, {"a.jpg"},
            {"x/b.jpg"});
    }
    void renameFile()
    {
        makeEntries(FETCH(QStringList, entries));
        QCOMPARE(fs().renameFile(FETCH(QString, from), FETCH(QString, to)), FETCH(bool, renamed));
        const QStringList onDisk =
            QDir(home_->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
        for (const QString& entry : FETCH(QStringList, present))
            QVERIFY2(home_->exists(entry), qPrintable(entry));
        for (const QString& entry : FETCH(QStringList, absent)) // exactly this name, no other case
            QVERIFY2(!onDisk.contains(entry) && !home_->exists(entry), qPrintable(entry));
    }

    void deleteTree_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<TreeDeleteResult>("result");
        QTest::addColumn<QString>("gone");
        using R = TreeDeleteResult;
        QTest::newRow("site ignoring case, not what it links to")
            << "c:\\SITE\\" << R::Deleted << "Site";
        QTest::newRow("link to a folder goes itself") << "C:\\SiteLink" << R::Deleted << "SiteLink";
        QTest::newRow("data folder") << "C:\\LUMENTAS" << R::Refused << "";
        QTest::newRow("ancestor of a protected folder") << "C:\\Deep" << R::Refused << "";
        QTest::newRow("protected folder through a link") << "C:\\Up\\Lumentas" << R::Refused << "";
        QTest::newRow("root of a Drives.txt drive through C:") << "C:\\Usb" << R::Refused << "";
        QTest::newRow("mount point") << "Z:\\proc" << R::Refused << "";
    }
    void deleteTree()
    {
        const QString gone = FETCH(QString, gone);
        QStringList kept{"Site/a.jpg",         "Site/sub/b.jpg",  "Lumentas/keep.txt",
                         "Lumentas/Old/x.txt", "Deep/Data/d.txt", "Usb/u.txt",
                         "Keep/k.txt",         "Keep/inner/i.txt"};
        makeEntries(kept + QStringList{"Site/.hidden/c.jpg"});
        QVERIFY(QFile::setPermissions(home_->native("Site/sub/b.jpg"), QFile::ReadOwner));
        link("~/Site", "SiteLink");
        link("~", "Up");
        link("~/Keep", "Site/folderLink");
        link("~/Keep/k.txt", "Site/fileLink");
        link("~/nowhere", "Site/brokenLink");
        fs().addProtectedFolder("C:\\Lumentas");
        fs().addProtectedFolder("C:\\Deep\\Data");
        fs().drives().addFromText(u"E = " + home_->native("Usb"));

        QCOMPARE(fs().deleteTree(FETCH(QString, path)), FETCH(TreeDeleteResult, result));
        if (!gone.isEmpty()) {
            QVERIFY(this->gone(gone));
            kept.removeIf([&](const QString& file) { return file.startsWith(gone + u'/'); });
        }
        for (const QString& file : std::as_const(kept))
            QVERIFY2(home_->exists(file), qPrintable(file));
    }
};

QTEST_GUILESS_MAIN(TestFileSystem)
#include "tst_FileSystem.moc"
