#include "platform/FileSystem.h"

#include "support/TestHome.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
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
    // "~" stands for the home in expected native paths, "<Z>" for the home
    // as a path on Z: in program-form input.
    QString expand(QString text) const
    {
        if (text.startsWith(u'~'))
            text.replace(0, 1, home_->path());
        const QString homeOnZ = u"Z:" + QString(home_->path()).replace(u'/', u'\\');
        return text.replace(QStringLiteral("<Z>"), homeOnZ);
    }
    void link(const QString& target, const QString& linkName) const
    {
        QVERIFY(QFile::link(expand(target), home_->native(linkName)));
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
    void listings_data();
    void listings();
    void listFolder_data();
    void listFolder();
    void namesThatAreNotUtf8();
    void attributes_data();
    void attributes();
    void clearAttributes();
    void makeFolder_data();
    void makeFolder();
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

    const QStringList none;
    QTest::newRow("capitals find small letters") << QStringList{"pics/a.jpg"} << "C:\\PICS\\A.JPG"
                                                 << "~/pics/a.jpg";
    QTest::newRow("exact name first") << QStringList{"A.JPG", "a.jpg"} << "C:\\a.jpg"
                                      << "~/a.jpg";
    QTest::newRow("first in byte order") << QStringList{"a.JPG", "A.jpg"} << "C:\\A.JPG"
                                         << "~/A.jpg";
    QTest::newRow("new parts keep their case") << QStringList{"pics/"} << "c:\\PICS\\New\\B.JPG"
                                               << "~/pics/New/B.JPG";
    QTest::newRow("small letters find capitals")
        << QStringList{"Lumentas/Out/"} << "c:\\lumentas\\out\\a.jpg"
        << "~/Lumentas/Out/a.jpg";
    QTest::newRow("slash as backslash") << QStringList{"pics/a.jpg"} << "C:/pics/a.jpg"
                                        << "~/pics/a.jpg";
    QTest::newRow("trailing blank") << QStringList{"MPLAYER2.EXE"} << "C:\\MPLAYER2.EXE "
                                    << "~/MPLAYER2.EXE";
    QTest::newRow("trailing dots and blanks of a folder")
        << QStringList{"pics/a.jpg"} << "C:\\pics. .\\a.jpg"
        << "~/pics/a.jpg";
    QTest::newRow("dot and dot dot") << QStringList{"pics/a.jpg"} << "C:\\pics\\.\\x\\..\\a.jpg"
                                     << "~/pics/a.jpg";
    QTest::newRow("dot dot stops at the drive root") << none << "C:\\..\\..\\a.jpg"
                                                     << "~/a.jpg";
    QTest::newRow("double backslash") << QStringList{"pics/a.jpg"} << "C:\\\\pics\\\\a.jpg"
                                      << "~/pics/a.jpg";
    QTest::newRow("hidden part found too") << QStringList{".config/x.txt"} << "C:\\.CONFIG\\X.TXT"
                                           << "~/.config/x.txt";
    QTest::newRow("full-width letters") << QStringList{"ａ.jpg"} << "C:\\Ａ.JPG"
                                        << "~/ａ.jpg";
    QTest::newRow("blanks inside names") << QStringList{"my pics/a b.jpg"} << "C:\\My Pics\\A B.jpg"
                                         << "~/my pics/a b.jpg";
    QTest::newRow("below a missing part") << QStringList{"x/a.jpg"} << "C:\\y\\X\\A.JPG"
                                          << "~/y/X/A.JPG";
    QTest::newRow("home") << none << "C:\\"
                          << "~";
    QTest::newRow("home on Z:") << QStringList{"pics/a.jpg"} << "<Z>\\PICS\\a.jpg"
                                << "~/pics/a.jpg";
    QTest::newRow("root") << none << "z:\\"
                          << "/";
    QTest::newRow("relative") << QStringList{"pics/a.jpg"} << "pics\\A.jpg"
                              << "~/pics/a.jpg";
    QTest::newRow("root of the current drive") << QStringList{"a.jpg"} << "\\a.jpg"
                                               << "~/a.jpg";
    QTest::newRow("drive without backslash") << QStringList{"a.jpg"} << "C:a.jpg"
                                             << "~/a.jpg";
    QTest::newRow("unknown drive") << none << "Q:\\x"
                                   << "";
    QTest::newRow("address") << none << "http://example.com/a.jpg"
                             << "";
    QTest::newRow("empty") << none << ""
                           << "";
}

void TestFileSystem::toNative()
{
    QFETCH(QStringList, entries);
    QFETCH(QString, program);
    QFETCH(QString, native);
    makeEntries(entries);
    QCOMPARE(fs().toNative(expand(program)), expand(native));
}

void TestFileSystem::currentFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("changed");
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("relative");
    QTest::addColumn<QString>("native");

    QTest::newRow("folder") << "C:\\pics" << true << "C:\\pics"
                            << "a.jpg"
                            << "~/pics/a.jpg";
    QTest::newRow("case from the disk") << "c:\\PICS\\" << true << "C:\\pics"
                                        << "SUB\\b.jpg"
                                        << "~/pics/sub/b.jpg";
    QTest::newRow("relative folder") << "pics\\sub" << true << "C:\\pics\\sub"
                                     << "..\\c.jpg"
                                     << "~/pics/c.jpg";
    QTest::newRow("drive root") << "C:\\" << true << "C:\\"
                                << "a.jpg"
                                << "~/a.jpg";
    QTest::newRow("other drive") << "Z:\\" << true << "Z:\\"
                                 << "C:a.jpg"
                                 << "~/a.jpg";
    QTest::newRow("drive-relative on the current drive") << "pics" << true << "C:\\pics"
                                                         << "C:sub"
                                                         << "~/pics/sub";
    QTest::newRow("a file") << "C:\\pics\\a.jpg" << false << "C:\\"
                            << "a.jpg"
                            << "~/a.jpg";
    QTest::newRow("missing") << "C:\\none" << false << "C:\\"
                             << "a.jpg"
                             << "~/a.jpg";
    QTest::newRow("unknown drive") << "Q:\\" << false << "C:\\"
                                   << "a.jpg"
                                   << "~/a.jpg";
}

void TestFileSystem::currentFolder()
{
    QFETCH(QString, folder);
    QFETCH(bool, changed);
    QFETCH(QString, current);
    QFETCH(QString, relative);
    QFETCH(QString, native);
    makeEntries({"pics/a.jpg", "pics/sub/b.jpg"});
    QCOMPARE(fs().curDir(), QStringLiteral("C:\\"));
    QCOMPARE(fs().chDir(folder), changed);
    QCOMPARE(fs().curDir(), current);
    QCOMPARE(fs().toNative(relative), expand(native));
}

void TestFileSystem::dir_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");

    const QStringList none;
    QTest::newRow("file") << QStringList{"a.jpg"} << "C:\\a.jpg"
                          << "a.jpg";
    QTest::newRow("name as on disk") << QStringList{"pics/a.jpg"} << "C:\\PICS\\A.JPG"
                                     << "a.jpg";
    QTest::newRow("trailing blank") << QStringList{"MPLAYER2.EXE"} << "C:\\MPLAYER2.EXE "
                                    << "MPLAYER2.EXE";
    QTest::newRow("relative") << QStringList{"a.jpg"} << "a.jpg"
                              << "a.jpg";
    QTest::newRow("dot name hidden") << QStringList{".x.jpg"} << "C:\\.x.jpg"
                                     << "";
    QTest::newRow("dot name not matched") << QStringList{".x.jpg"} << "C:\\*.jpg"
                                          << "";
    QTest::newRow("folder name") << QStringList{"pics/a.jpg"} << "C:\\pics"
                                 << "";
    QTest::newRow("folder not matched") << QStringList{"pics.jpg/"} << "C:\\*.jpg"
                                        << "";
    QTest::newRow("first in order") << QStringList{"b.jpg", "A.jpg", "c.jpg"} << "C:\\*.jpg"
                                    << "A.jpg";
    QTest::newRow("question mark") << QStringList{"ab.jpg"} << "C:\\a?.JPG"
                                   << "ab.jpg";
    QTest::newRow("question mark is one character") << QStringList{"abc.jpg"} << "C:\\a?.jpg"
                                                    << "";
    QTest::newRow("literal name before wildcard") << QStringList{"a!.jpg", "a*.jpg"} << "C:\\a*.jpg"
                                                  << "a*.jpg";
    QTest::newRow("wildcard without literal") << QStringList{"a!.jpg"} << "C:\\a*.jpg"
                                              << "a!.jpg";
    QTest::newRow("no character classes") << QStringList{"[a]x.jpg"} << "C:\\[a]*.jpg"
                                          << "[a]x.jpg";
    QTest::newRow("pattern ignores case") << QStringList{"a.bmp"} << "C:\\*.BMP"
                                          << "a.bmp";
    QTest::newRow("star dot star without dot") << QStringList{"README"} << "C:\\*.*"
                                               << "README";
    QTest::newRow("name dot star without dot") << QStringList{"notes"} << "C:\\NOTES.*"
                                               << "notes";
    QTest::newRow("trailing backslash lists") << QStringList{"pics/b.jpg"} << "C:\\pics\\"
                                              << "b.jpg";
    QTest::newRow("backslash in a name") << QStringList{"a\\b.jpg"} << "C:\\*.jpg"
                                         << "";
    QTest::newRow("missing") << QStringList{"a.jpg"} << "C:\\b.jpg"
                             << "";
    QTest::newRow("missing folder") << none << "C:\\none\\*.*"
                                    << "";
    QTest::newRow("unknown drive") << none << "Q:\\a.jpg"
                                   << "";
    QTest::newRow("address") << QStringList{"a.jpg"} << "http://x/a.jpg"
                             << "";
    QTest::newRow("empty") << QStringList{"a.jpg"} << ""
                           << "";
}

void TestFileSystem::dir()
{
    QFETCH(QStringList, entries);
    QFETCH(QString, path);
    QFETCH(QString, name);
    makeEntries(entries);
    QCOMPARE(fs().dir(path), name);
}

void TestFileSystem::queries_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("isFile");
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<bool>("isLink");
    QTest::addColumn<qint64>("length");

    QTest::newRow("file") << "C:\\PICS\\A.JPG" << true << false << false << qint64(10);
    QTest::newRow("dot file") << "C:\\.x.jpg" << false << false << false << qint64(6);
    QTest::newRow("folder") << "C:\\pics" << false << true << false << qint64(-1);
    QTest::newRow("linked folder") << "C:\\linked" << false << true << true << qint64(-1);
    QTest::newRow("linked file") << "C:\\b.jpg" << true << false << true << qint64(10);
    QTest::newRow("broken link") << "C:\\gone.jpg" << false << false << true << qint64(-1);
    QTest::newRow("missing") << "C:\\none.jpg" << false << false << false << qint64(-1);
    QTest::newRow("unknown drive") << "Q:\\pics\\a.jpg" << false << false << false << qint64(-1);
}

void TestFileSystem::queries()
{
    QFETCH(QString, path);
    QFETCH(bool, isFile);
    QFETCH(bool, isFolder);
    QFETCH(bool, isLink);
    QFETCH(qint64, length);
    makeEntries({"pics/a.jpg", ".x.jpg"});
    link(QStringLiteral("~/pics"), QStringLiteral("linked"));
    link(QStringLiteral("~/pics/a.jpg"), QStringLiteral("b.jpg"));
    link(QStringLiteral("~/nowhere.jpg"), QStringLiteral("gone.jpg"));

    QCOMPARE(fs().isFile(path), isFile);
    QCOMPARE(fs().isFolder(path), isFolder);
    QCOMPARE(fs().isLink(path), isLink);
    QCOMPARE(fs().fileLength(path), length);
}

void TestFileSystem::listings_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("pattern"); // "folders" lists the folders
    QTest::addColumn<QStringList>("names");

    const QStringList mixed{"b.JPG",    "a.jpg",     "C.jpg",  ".h.jpg", "README",
                            "a\\b.jpg", "sub/x.jpg", "Alpha/", ".git/",  "x.jpg/"};
    QTest::newRow("files by pattern") << mixed << "C:\\"
                                      << "*.jpg" << QStringList{"a.jpg", "b.JPG", "C.jpg"};
    QTest::newRow("all files") << mixed << "c:"
                               << "*.*" << QStringList{"a.jpg", "b.JPG", "C.jpg", "README"};
    QTest::newRow("folders") << mixed << "C:\\"
                             << "folders" << QStringList{"Alpha", "sub", "x.jpg"};
    QTest::newRow("files of a sub-folder") << mixed << "C:\\SUB"
                                           << "*.*" << QStringList{"x.jpg"};
    QTest::newRow("same name in two cases") << QStringList{"a.jpg", "A.jpg", "B.jpg"} << "C:\\"
                                            << "*.*" << QStringList{"A.jpg", "a.jpg", "B.jpg"};
    QTest::newRow("pattern ignores case") << QStringList{"a.bmp", "b.BMP", "c.jpg"} << "C:\\"
                                          << "*.BMP" << QStringList{"a.bmp", "b.BMP"};
    QTest::newRow("missing folder") << mixed << "C:\\none"
                                    << "*.*" << QStringList{};
    QTest::newRow("unknown drive") << mixed << "Q:\\"
                                   << "folders" << QStringList{};
}

void TestFileSystem::listings()
{
    QFETCH(QStringList, entries);
    QFETCH(QString, folder);
    QFETCH(QString, pattern);
    QFETCH(QStringList, names);
    makeEntries(entries);
    if (pattern == u"folders")
        QCOMPARE(fs().folders(folder), names);
    else
        QCOMPARE(fs().files(folder, pattern), names);
}

void TestFileSystem::listFolder_data()
{
    QTest::addColumn<QStringList>("patterns");
    QTest::addColumn<QStringList>("files");

    QTest::newRow("all files") << QStringList{"*.*"}
                               << QStringList{"a.jpg", "b.BMP", "C.jpg", "README", "to-file.jpg"};
    QTest::newRow("two patterns, each name once")
        << QStringList{"*.JPG", "a*", "readme"}
        << QStringList{"a.jpg", "C.jpg", "README", "to-file.jpg"};
    QTest::newRow("no pattern matches") << QStringList{"*.png"} << QStringList{};
}

void TestFileSystem::listFolder()
{
    QFETCH(QStringList, patterns);
    QFETCH(QStringList, files);
    makeEntries({"top/C.jpg", "top/a.jpg", "top/b.BMP", "top/README", "top/.h.jpg", "top/x\\y.jpg",
                 "top/Sub/", "top/alpha/", "top/.git/", "elsewhere/", "elsewhere/f.jpg"});
    link("~/elsewhere", "top/zlinked");
    link("~/elsewhere", "top/Blinked");
    link("~/elsewhere/f.jpg", "top/to-file.jpg");
    link("~/gone", "top/dangling.jpg");

    const FileSystem::FolderListing listing = fs().listFolder("C:\\top", patterns);
    QCOMPARE(listing.files, files);
    QCOMPARE(listing.folders, (QStringList{"alpha", "Sub"}));
    QCOMPARE(listing.linkedFolders, (QStringList{"Blinked", "zlinked"}));

    const FileSystem::FolderListing missing = fs().listFolder("C:\\none", patterns);
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
    QCOMPARE(fs().dir(QStringLiteral("C:\\old\\*.txt")), QStringLiteral("ok.txt"));
    QCOMPARE(fs().dir(QStringLiteral("C:\\old\\\uFFFD.txt")), QString());
    QCOMPARE(fs().deleteTree(QStringLiteral("C:\\old")), TreeDeleteResult::Deleted);
    QVERIFY(!home_->exists(QStringLiteral("old")));
}

void TestFileSystem::attributes_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("value");

    QTest::newRow("file") << "a.jpg" << 0644 << 0;
    QTest::newRow("read-only file") << "a.jpg" << 0444 << 1;
    QTest::newRow("dot file") << ".a.jpg" << 0644 << 2;
    QTest::newRow("read-only dot file") << ".a.jpg" << 0444 << 3;
    QTest::newRow("folder") << "pics/" << 0755 << 16;
    QTest::newRow("read-only folder") << "pics/" << 0555 << 17;
    QTest::newRow("dot folder") << ".pics/" << 0755 << 18;
    QTest::newRow("missing") << "" << 0 << -1;
}

void TestFileSystem::attributes()
{
    QFETCH(QString, entry);
    QFETCH(int, mode);
    QFETCH(int, value);
    QString program = QStringLiteral("C:\\none");
    if (!entry.isEmpty()) {
        makeEntries({entry});
        const QString name = entry.endsWith(u'/') ? entry.chopped(1) : entry;
        QCOMPARE(::chmod(QFile::encodeName(home_->native(name)).constData(), mode), 0);
        program = u"C:\\" + name.toUpper();
    }
    QCOMPARE(fs().attributes(program), value);
}

void TestFileSystem::clearAttributes()
{
    const QString file = home_->writeFile(QStringLiteral("a.jpg"), "x");
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadGroup));
    QCOMPARE(fs().attributes(QStringLiteral("C:\\A.JPG")), 1);
    QVERIFY(fs().clearAttributes(QStringLiteral("C:\\A.JPG")));
    QCOMPARE(fs().attributes(QStringLiteral("C:\\A.JPG")), 0);
    struct stat status {};
    QCOMPARE(::stat(QFile::encodeName(file).constData(), &status), 0);
    QCOMPARE(status.st_mode & 07777, 0640u); // only the owner's write bit added
    QVERIFY(!fs().clearAttributes(QStringLiteral("C:\\none")));
}

void TestFileSystem::makeFolder_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("made");
    QTest::addColumn<QString>("folder");

    QTest::newRow("new folder") << "C:\\New" << true << "New";
    QTest::newRow("case kept below a found folder") << "C:\\PICS\\Sub" << true << "pics/Sub";
    QTest::newRow("exists in other case") << "C:\\PICS" << false << "pics";
    QTest::newRow("a file is there") << "C:\\pics\\a.jpg" << false << "";
    QTest::newRow("parent missing") << "C:\\a\\b" << false << "";
    QTest::newRow("drive root") << "C:\\" << false << "";
    QTest::newRow("unknown drive") << "Q:\\x" << false << "";
}

void TestFileSystem::makeFolder()
{
    QFETCH(QString, path);
    QFETCH(bool, made);
    QFETCH(QString, folder);
    makeEntries({"pics/a.jpg"});
    QCOMPARE(fs().makeFolder(path), made);
    if (!folder.isEmpty())
        QVERIFY(QFileInfo(home_->native(folder)).isDir());
    if (!made)
        QVERIFY(!home_->exists(QStringLiteral("a")));
}

void TestFileSystem::copyFile_data()
{
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("copied");
    QTest::addColumn<QString>("target"); // native, under home
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("new file") << "C:\\pics\\b.jpg" << true << "pics/b.jpg" << QByteArray("source");
    QTest::newRow("replaces, found ignoring case")
        << "C:\\OLD.JPG" << true << "old.jpg" << QByteArray("source");
    QTest::newRow("onto itself") << "C:\\a.jpg" << true << "a.jpg" << QByteArray("source");
    QTest::newRow("missing folder") << "C:\\none\\b.jpg" << false << "none/b.jpg" << QByteArray();
    QTest::newRow("onto a folder") << "C:\\pics" << false << "old.jpg" << QByteArray("old");
    QTest::newRow("unknown drive") << "Q:\\b.jpg" << false << "old.jpg" << QByteArray("old");
}

void TestFileSystem::copyFile()
{
    QFETCH(QString, to);
    QFETCH(bool, copied);
    QFETCH(QString, target);
    QFETCH(QByteArray, bytes);
    home_->writeFile(QStringLiteral("a.jpg"), "source");
    home_->writeFile(QStringLiteral("old.jpg"), "old");
    home_->makeFolder(QStringLiteral("pics"));
    QCOMPARE(fs().copyFile(QStringLiteral("C:\\A.JPG"), to), copied);
    QCOMPARE(home_->readFile(target), bytes);
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

    QTest::newRow("rename") << QStringList{"a.jpg"} << "C:\\A.JPG"
                            << "C:\\b.jpg" << true << QStringList{"b.jpg"} << QStringList{"a.jpg"};
    QTest::newRow("move into a folder")
        << QStringList{"a.jpg", "Sub/"} << "C:\\a.jpg"
        << "C:\\SUB\\c.jpg" << true << QStringList{"Sub/c.jpg"} << QStringList{"a.jpg", "SUB"};
    QTest::newRow("target exists")
        << QStringList{"a.jpg", "b.jpg"} << "C:\\a.jpg"
        << "C:\\b.jpg" << false << QStringList{"a.jpg", "b.jpg"} << QStringList{};
    QTest::newRow("target exists in other case")
        << QStringList{"a.jpg", "B.JPG"} << "C:\\a.jpg"
        << "C:\\b.jpg" << false << QStringList{"a.jpg", "B.JPG"} << QStringList{"b.jpg"};
    QTest::newRow("change of case")
        << QStringList{"a.jpg"} << "C:\\a.jpg"
        << "C:\\A.JPG" << true << QStringList{"A.JPG"} << QStringList{"a.jpg"};
    QTest::newRow("onto itself") << QStringList{"a.jpg"} << "C:\\a.jpg"
                                 << "C:\\a.jpg" << false << QStringList{"a.jpg"} << QStringList{};
    QTest::newRow("slash in the new name")
        << QStringList{"a.jpg", "x/"} << "C:\\a.jpg"
        << "C:\\x/b.jpg" << false << QStringList{"a.jpg"} << QStringList{"x/b.jpg"};
    QTest::newRow("folder") << QStringList{"pics/a.jpg"} << "C:\\pics"
                            << "C:\\Photos" << true << QStringList{"Photos/a.jpg"}
                            << QStringList{"pics"};
    QTest::newRow("missing source")
        << QStringList{} << "C:\\a.jpg"
        << "C:\\b.jpg" << false << QStringList{} << QStringList{"b.jpg"};
}

void TestFileSystem::renameFile()
{
    QFETCH(QStringList, entries);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(bool, renamed);
    QFETCH(QStringList, present);
    QFETCH(QStringList, absent);
    makeEntries(entries);
    QCOMPARE(fs().renameFile(from, to), renamed);
    const QStringList onDisk =
        QDir(home_->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QString& entry : present)
        QVERIFY2(home_->exists(entry), qPrintable(entry));
    for (const QString& entry : absent) // exactly this name, not another case
        QVERIFY2(!onDisk.contains(entry) && !home_->exists(entry), qPrintable(entry));
}

void TestFileSystem::deleteFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("deleted");
    QTest::addColumn<QString>("gone");

    QTest::newRow("file") << "C:\\PICS\\A.JPG" << true << "pics/a.jpg";
    QTest::newRow("read-only dot file") << "C:\\.ro" << true << ".ro";
    QTest::newRow("link to a file") << "C:\\link.jpg" << true << "link.jpg";
    QTest::newRow("link to a folder") << "C:\\linked" << true << "linked";
    QTest::newRow("folder") << "C:\\pics" << false << "";
    QTest::newRow("missing") << "C:\\none" << false << "";
}

void TestFileSystem::deleteFile()
{
    QFETCH(QString, path);
    QFETCH(bool, deleted);
    QFETCH(QString, gone);
    makeEntries({"pics/a.jpg", ".ro"});
    QVERIFY(QFile::setPermissions(home_->native(QStringLiteral(".ro")), QFile::ReadOwner));
    link(QStringLiteral("~/pics/a.jpg"), QStringLiteral("link.jpg"));
    link(QStringLiteral("~/pics"), QStringLiteral("linked"));

    QCOMPARE(fs().deleteFile(path), deleted);
    if (!gone.isEmpty())
        QVERIFY(!QFileInfo(home_->native(gone)).exists() &&
                !QFileInfo(home_->native(gone)).isSymLink());
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
    QTest::newRow("site") << "C:\\Site" << R::Deleted << "Site";
    QTest::newRow("site ignoring case") << "c:\\SITE\\" << R::Deleted << "Site";
    QTest::newRow("inside the data folder") << "C:\\Lumentas\\Old" << R::Deleted << "Lumentas/Old";
    QTest::newRow("link to a folder goes itself") << "C:\\SiteLink" << R::Deleted << "SiteLink";
    QTest::newRow("home") << "C:\\" << R::Refused << "";
    QTest::newRow("home through dot dot") << "C:\\Site\\.." << R::Refused << "";
    QTest::newRow("home on Z:") << "<Z>" << R::Refused << "";
    QTest::newRow("data folder") << "C:\\LUMENTAS" << R::Refused << "";
    QTest::newRow("ancestor of a protected folder") << "C:\\Deep" << R::Refused << "";
    QTest::newRow("protected folder through a link") << "C:\\Up\\Lumentas" << R::Refused << "";
    QTest::newRow("root of a Drives.txt drive") << "E:\\" << R::Refused << "";
    QTest::newRow("same root through C:") << "C:\\Usb" << R::Refused << "";
    QTest::newRow("mount point") << "Z:\\proc" << R::Refused << "";
    QTest::newRow("missing") << "C:\\none" << R::Missing << "";
    QTest::newRow("a file") << "C:\\Site\\a.jpg" << R::Missing << "";
    QTest::newRow("unknown drive") << "Q:\\Site" << R::Missing << "";
}

void TestFileSystem::deleteTree()
{
    QFETCH(QString, path);
    QFETCH(TreeDeleteResult, result);
    QFETCH(QString, gone);
    makeEntries({"Site/a.jpg", "Site/sub/b.jpg", "Site/.hidden/c.jpg", "Lumentas/Old/x.txt",
                 "Lumentas/keep.txt", "Deep/Data/d.txt", "Usb/u.txt"});
    QVERIFY(
        QFile::setPermissions(home_->native(QStringLiteral("Site/sub/b.jpg")), QFile::ReadOwner));
    link(QStringLiteral("~/Site"), QStringLiteral("SiteLink"));
    link(QStringLiteral("~"), QStringLiteral("Up"));
    fs().addProtectedFolder(QStringLiteral("C:\\Lumentas"));
    fs().addProtectedFolder(QStringLiteral("C:\\Deep\\Data"));
    fs().drives().addFromText(u"E = " + home_->native(QStringLiteral("Usb")));

    QCOMPARE(fs().deleteTree(expand(path)), result);
    QStringList kept{"Site/a.jpg",      "Site/sub/b.jpg", "Lumentas/keep.txt",
                     "Deep/Data/d.txt", "Usb/u.txt",      "Lumentas/Old/x.txt"};
    if (!gone.isEmpty()) {
        QVERIFY(!QFileInfo(home_->native(gone)).exists());
        QVERIFY(!QFileInfo(home_->native(gone)).isSymLink());
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
    QVERIFY(!QFileInfo(home_->native(QStringLiteral("Site"))).exists());
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
    QCOMPARE(fs().toProgram(home_->native(QStringLiteral("usb/a.jpg"))),
             QStringLiteral("E:\\a.jpg"));

    // Loading again starts from the home: a line taken out takes its drive away.
    home_->writeFile(QStringLiteral("run/Drives.txt"), "D = /media/cdrom\n");
    fs().loadDrivesFile(home_->native(QStringLiteral("run")));
    QCOMPARE(fs().drives().letters(), (QList<QChar>{u'C', u'D', u'Z'}));
    QCOMPARE(fs().drives().drive(u'D').cdDevice, QString());
    QCOMPARE(fs().toNative(QStringLiteral("C:\\usb")), home_->native(QStringLiteral("usb")));
}

QTEST_GUILESS_MAIN(TestFileSystem)
#include "tst_FileSystem.moc"
