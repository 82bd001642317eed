#include "platform/FileSystem.h"

#include "support/Fetch.h"
#include "support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using lumen::FileSystem;
using lumen::TreeDeleteResult;
using lumen::test::TestHome;

Q_DECLARE_METATYPE(TreeDeleteResult)

class TestFileSystem : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestHome> home_;
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

private Q_SLOTS:
    void init() { home_ = std::make_unique<TestHome>(); }
    void cleanup() { home_.reset(); }

    void toNative_data();
    void toNative();
    void currentFolder_data();
    void currentFolder();
    void dir_data();
    void dir();
    void queries_data();
    void queries();
    void listFolder();
    void namesThatAreNotUtf8();
    void copyFile_data();
    void copyFile();
    void renameFile_data();
    void renameFile();
    void deleteFile_data();
    void deleteFile();
    void deleteTree_data();
    void deleteTree();
    void deleteTreeLeavesLinkTargets();
    void loadDrivesFile();
};

void TestFileSystem::toNative_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("native");
    const auto row = [](const char* name, const QStringList& entries, const char* program,
                        const char* native) {
        QTest::newRow(name) << entries << QString::fromUtf8(program) << QString::fromUtf8(native);
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
}

void TestFileSystem::toNative()
{
    makeEntries(FETCH(QStringList, entries));
    QCOMPARE(fs().toNative(FETCH(QString, program)), expand(FETCH(QString, native)));
}

void TestFileSystem::currentFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("relative");
    QTest::addColumn<QString>("native");
    const auto row = [](const char* name, const char* folder, bool changed, const char* current,
                        const char* relative, const char* native) {
        QTest::newRow(name) << QString(folder) << changed << QString(current) << QString(relative)
                            << QString(native);
    };
    row("case from the disk", "c:\\PICS\\", true, "C:\\pics", "SUB\\b.jpg", "~/pics/sub/b.jpg");
    row("relative folder", "pics\\sub", true, "C:\\pics\\sub", "..\\c.jpg", "~/pics/c.jpg");
    row("drive-relative on the current drive", "pics", true, "C:\\pics", "C:sub", "~/pics/sub");
    row("a file", "C:\\pics\\a.jpg", false, "C:\\", "a.jpg", "~/a.jpg");
}

void TestFileSystem::currentFolder()
{
    makeEntries({"pics/a.jpg", "pics/sub/b.jpg"});
    QCOMPARE(fs().chDir(FETCH(QString, folder)), FETCH(bool, changed));
    QCOMPARE(fs().curDir(), FETCH(QString, current));
    QCOMPARE(fs().toNative(FETCH(QString, relative)), expand(FETCH(QString, native)));
}

void TestFileSystem::dir_data()
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

void TestFileSystem::dir()
{
    makeEntries(FETCH(QStringList, entries));
    QCOMPARE(fs().dir(FETCH(QString, path)), FETCH(QString, name));
}

void TestFileSystem::queries_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isFile");
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<bool>("isLink");
    QTest::addColumn<qint64>("length");

    QTest::newRow("dot file") << "C:\\.x.jpg" << false << false << false << qint64(6);
    QTest::newRow("folder") << "C:\\pics" << false << true << false << qint64(-1);
    QTest::newRow("linked folder") << "C:\\linked" << false << true << true << qint64(-1);
    QTest::newRow("linked file") << "C:\\b.jpg" << true << false << true << qint64(10);
    QTest::newRow("broken link") << "C:\\gone.jpg" << false << false << true << qint64(-1);
}

void TestFileSystem::queries()
{
    const QString path = FETCH(QString, path);
    makeEntries({"pics/a.jpg", ".x.jpg"});
    link(QStringLiteral("~/pics"), QStringLiteral("linked"));
    link(QStringLiteral("~/pics/a.jpg"), QStringLiteral("b.jpg"));
    link(QStringLiteral("~/nowhere.jpg"), QStringLiteral("gone.jpg"));

    QCOMPARE(fs().isFile(path), FETCH(bool, isFile));
    QCOMPARE(fs().isFolder(path), FETCH(bool, isFolder));
    QCOMPARE(fs().isLink(path), FETCH(bool, isLink));
    QCOMPARE(fs().fileLength(path), FETCH(qint64, length));
}

void TestFileSystem::listFolder()
{
    makeEntries({"top/C.jpg", "top/a.jpg", "top/b.BMP", "top/README", "top/.h.jpg", "top/x\\y.jpg",
                 "top/Sub/", "top/alpha/", "top/.git/", "elsewhere/", "elsewhere/f.jpg"});
    link("~/elsewhere", "top/zlinked");
    link("~/elsewhere", "top/Blinked");
    link("~/elsewhere/f.jpg", "top/to-file.jpg");
    link("~/gone", "top/dangling.jpg");

    // Two patterns, each name once.
    const FileSystem::FolderListing listing = fs().listFolder("C:\\top", {"*.JPG", "a*", "readme"});
    QCOMPARE(listing.files, (QStringList{"a.jpg", "C.jpg", "README", "to-file.jpg"}));
    QCOMPARE(listing.folders, (QStringList{"alpha", "Sub"}));
    QCOMPARE(listing.linkedFolders, (QStringList{"Blinked", "zlinked"}));

    const FileSystem::FolderListing missing = fs().listFolder("C:\\none", {"*.*"});
    QVERIFY(missing.files.isEmpty() && missing.folders.isEmpty());
}

void TestFileSystem::namesThatAreNotUtf8()
{
    // Names written by a CP932 system: 0x83 0x74 ("フ") isn't UTF-8.
    makeEntries({"old/ok.txt", "old/good/"});
    const QByteArray old = QFile::encodeName(home_->native(QStringLiteral("old")));
    const QByteArray file = old + "/\x83\x74.txt";
    const QByteArray folder = old + "/\x83\x75";
    const int fd = ::open(file.constData(), O_WRONLY | O_CREAT | O_EXCL, 0644);
    QVERIFY(fd >= 0);
    ::close(fd);
    QCOMPARE(::mkdir(folder.constData(), 0755), 0);

    QCOMPARE(fs().files(QStringLiteral("C:\\old")), QStringList{QStringLiteral("ok.txt")});
    QCOMPARE(fs().folders(QStringLiteral("C:\\old")), QStringList{QStringLiteral("good")});
    const FileSystem::FolderListing listing = fs().listFolder(QStringLiteral("C:\\old"), {"*.*"});
    QCOMPARE(listing.files, QStringList{QStringLiteral("ok.txt")});
    QCOMPARE(listing.folders, QStringList{QStringLiteral("good")});
    QCOMPARE(fs().dir(QStringLiteral("C:\\old\\\uFFFD.txt")), QString());
    QCOMPARE(fs().deleteTree(QStringLiteral("C:\\old")), TreeDeleteResult::Deleted);
    QVERIFY(!home_->exists(QStringLiteral("old")));
}

void TestFileSystem::copyFile_data()
{
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("copied");
    QTest::addColumn<QString>("target"); // native, under home
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("replaces, found ignoring case")
        << "C:\\OLD.JPG" << true << "old.jpg" << QByteArray("source");
    QTest::newRow("onto itself") << "C:\\a.jpg" << true << "a.jpg" << QByteArray("source");
    QTest::newRow("onto a folder") << "C:\\pics" << false << "old.jpg" << QByteArray("old");
}

void TestFileSystem::copyFile()
{
    home_->writeFile(QStringLiteral("a.jpg"), "source");
    home_->writeFile(QStringLiteral("old.jpg"), "old");
    home_->makeFolder(QStringLiteral("pics"));
    QCOMPARE(fs().copyFile(QStringLiteral("C:\\A.JPG"), FETCH(QString, to)), FETCH(bool, copied));
    QCOMPARE(home_->readFile(FETCH(QString, target)), FETCH(QByteArray, bytes));
    QCOMPARE(home_->readFile(QStringLiteral("a.jpg")), QByteArray("source"));
    QCOMPARE(QDir(home_->path()).entryList(QDir::Files | QDir::Hidden),
             (QStringList{"a.jpg", "old.jpg"})); // no temporary file left over
}

void TestFileSystem::renameFile_data()
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
    row("move into a folder", {"a.jpg", "Sub/"}, "C:\\A.JPG", "C:\\SUB\\c.jpg", true, {"Sub/c.jpg"},
        {"a.jpg", "SUB"});
    row("target exists in other case", {"a.jpg", "B.JPG"}, "C:\\a.jpg", "C:\\b.jpg", false,
        {"a.jpg", "B.JPG"}, {"b.jpg"});
    row("change of case", {"a.jpg"}, "C:\\a.jpg", "C:\\A.JPG", true, {"A.JPG"}, {"a.jpg"});
    row("onto itself", {"a.jpg"}, "C:\\a.jpg", "C:\\a.jpg", false, {"a.jpg"}, {});
    row("slash in the new name", {"a.jpg", "x/"}, "C:\\a.jpg", "C:\\x/b.jpg", false, {"a.jpg"},
        {"x/b.jpg"});
}

void TestFileSystem::renameFile()
{
    makeEntries(FETCH(QStringList, entries));
    QCOMPARE(fs().renameFile(FETCH(QString, from), FETCH(QString, to)), FETCH(bool, renamed));
    const QStringList onDisk =
        QDir(home_->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QString& entry : FETCH(QStringList, present))
        QVERIFY2(home_->exists(entry), qPrintable(entry));
    for (const QString& entry : FETCH(QStringList, absent)) // exactly this name, not another case
        QVERIFY2(!onDisk.contains(entry) && !home_->exists(entry), qPrintable(entry));
}

void TestFileSystem::deleteFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("deleted");
    QTest::addColumn<QString>("gone");

    QTest::newRow("link to a file") << "C:\\link.jpg" << true << "link.jpg";
    QTest::newRow("link to a folder") << "C:\\linked" << true << "linked";
    QTest::newRow("folder") << "C:\\pics" << false << "";
}

void TestFileSystem::deleteFile()
{
    const QString gone = FETCH(QString, gone);
    makeEntries({"pics/a.jpg", ".ro"});
    QVERIFY(QFile::setPermissions(home_->native(QStringLiteral(".ro")), QFile::ReadOwner));
    link(QStringLiteral("~/pics/a.jpg"), QStringLiteral("link.jpg"));
    link(QStringLiteral("~/pics"), QStringLiteral("linked"));

    QCOMPARE(fs().deleteFile(FETCH(QString, path)), FETCH(bool, deleted));
    if (!gone.isEmpty())
        QVERIFY(this->gone(gone));
    QVERIFY(QFileInfo(home_->native(QStringLiteral("pics"))).isDir());
    if (gone != u"pics/a.jpg") // link targets stay
        QCOMPARE(home_->readFile(QStringLiteral("pics/a.jpg")), QByteArray("pics/a.jpg"));
}

void TestFileSystem::deleteTree_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<TreeDeleteResult>("result");
    QTest::addColumn<QString>("gone");

    using R = TreeDeleteResult;
    QTest::newRow("site ignoring case") << "c:\\SITE\\" << R::Deleted << "Site";
    QTest::newRow("link to a folder goes itself") << "C:\\SiteLink" << R::Deleted << "SiteLink";
    QTest::newRow("data folder") << "C:\\LUMENTAS" << R::Refused << "";
    QTest::newRow("ancestor of a protected folder") << "C:\\Deep" << R::Refused << "";
    QTest::newRow("protected folder through a link") << "C:\\Up\\Lumentas" << R::Refused << "";
    QTest::newRow("root of a Drives.txt drive through C:") << "C:\\Usb" << R::Refused << "";
    QTest::newRow("mount point") << "Z:\\proc" << R::Refused << "";
}

void TestFileSystem::deleteTree()
{
    const QString gone = FETCH(QString, gone);
    makeEntries({"Site/a.jpg", "Site/sub/b.jpg", "Site/.hidden/c.jpg", "Lumentas/Old/x.txt",
                 "Lumentas/keep.txt", "Deep/Data/d.txt", "Usb/u.txt"});
    QVERIFY(
        QFile::setPermissions(home_->native(QStringLiteral("Site/sub/b.jpg")), QFile::ReadOwner));
    link(QStringLiteral("~/Site"), QStringLiteral("SiteLink"));
    link(QStringLiteral("~"), QStringLiteral("Up"));
    fs().addProtectedFolder(QStringLiteral("C:\\Lumentas"));
    fs().addProtectedFolder(QStringLiteral("C:\\Deep\\Data"));
    fs().drives().addFromText(u"E = " + home_->native(QStringLiteral("Usb")));

    QCOMPARE(fs().deleteTree(FETCH(QString, path)), FETCH(TreeDeleteResult, result));
    QStringList kept{"Site/a.jpg",      "Site/sub/b.jpg", "Lumentas/keep.txt",
                     "Deep/Data/d.txt", "Usb/u.txt",      "Lumentas/Old/x.txt"};
    if (!gone.isEmpty()) {
        QVERIFY(this->gone(gone));
        kept.removeIf([&](const QString& file) { return file.startsWith(gone + u'/'); });
    }
    for (const QString& file : std::as_const(kept))
        QVERIFY2(home_->exists(file), qPrintable(file));
}

void TestFileSystem::deleteTreeLeavesLinkTargets()
{
    makeEntries({"Site/a.jpg", "Keep/k.txt", "Keep/inner/i.txt"});
    link(QStringLiteral("~/Keep"), QStringLiteral("Site/folderLink"));
    link(QStringLiteral("~/Keep/k.txt"), QStringLiteral("Site/fileLink"));
    link(QStringLiteral("~/nowhere"), QStringLiteral("Site/brokenLink"));

    QCOMPARE(fs().deleteTree(QStringLiteral("C:\\Site")), TreeDeleteResult::Deleted);
    QVERIFY(gone(QStringLiteral("Site")));
    QCOMPARE(home_->readFile(QStringLiteral("Keep/k.txt")), QByteArray("Keep/k.txt"));
    QCOMPARE(home_->readFile(QStringLiteral("Keep/inner/i.txt")), QByteArray("Keep/inner/i.txt"));
}

void TestFileSystem::loadDrivesFile()
{
    home_->makeFolder(QStringLiteral("run"));
    fs().loadDrivesFile(home_->native(QStringLiteral("run")));
    QCOMPARE(home_->readFile(QStringLiteral("run/Drives.txt")),
             lumen::DriveMap::defaultDrivesText().toUtf8());
    QCOMPARE(fs().drives().letters(), (QList<QChar>{u'C', u'Z'}));

    makeEntries({"usb/a.jpg"});
    home_->writeFile(QStringLiteral("run/Drives.txt"),
                     "\xEF\xBB\xBF' drives\r\nE = " + QFile::encodeName(home_->native("usb")) +
                         "\r\nD = /media/cdrom, /dev/sr0\r\n");
    fs().loadDrivesFile(home_->native(QStringLiteral("run")));
    QCOMPARE(fs().toNative(QStringLiteral("e:\\A.JPG")),
             home_->native(QStringLiteral("usb/a.jpg")));
    QCOMPARE(fs().drives().drive(u'D').cdDevice, QStringLiteral("/dev/sr0"));

    // Loading again starts from the home: a line taken out takes its drive away.
    home_->writeFile(QStringLiteral("run/Drives.txt"), "D = /media/cdrom\n");
    fs().loadDrivesFile(home_->native(QStringLiteral("run")));
    QCOMPARE(fs().drives().letters(), (QList<QChar>{u'C', u'D', u'Z'}));
    QCOMPARE(fs().toNative(QStringLiteral("C:\\usb")), home_->native(QStringLiteral("usb")));
}

QTEST_GUILESS_MAIN(TestFileSystem)
#include "tst_FileSystem.moc"
