// Files that fight back: pipes, devices and links where a file should be,
// files larger than any the program reads, a write cut short by a file size
// limit, and staged files that a killed process left behind.
#include "platform/FileSystem.h"
#include "platform/RegularFile.h"
#include "platform/SafeFile.h"

#include "support/Fetch.h"
#include "support/SpecialFiles.h"
#include "support/TestHome.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utime.h>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(lumen::test::Special)
Q_DECLARE_METATYPE(lumen::PathKind)

namespace {

// The names in a folder, in byte order.
QStringList entries(const QString& folder)
{
    QStringList names = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                               QDir::NoDotAndDotDot);
    names.sort();
    return names;
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

// Runs `work` in a child process whose files may grow to `fileSizeLimit`
// bytes, with SIGXFSZ ignored, as the program runs; its result is the
// child's.
bool underFileSizeLimit(rlim_t fileSizeLimit, const std::function<bool()>& work)
{
    const pid_t child = fork();
    if (child == 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{fileSizeLimit, fileSizeLimit};
        setrlimit(RLIMIT_FSIZE, &limit);
        _exit(work() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void ageFile(const QString& native, int seconds)
{
    const time_t then = time(nullptr) - seconds;
    const utimbuf times{then, then};
    utime(QFile::encodeName(native).constData(), &times);
}

// A process number that no process has: that of a child that has ended.
pid_t endedProcess()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(0);
    waitpid(child, nullptr, 0);
    return child;
}

} // namespace

class TestHostileFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void specialFilesAreNeverOpened_data()
    {
        QTest::addColumn<Special>("kind");
        QTest::addColumn<PathKind>("expected");
        QTest::newRow("named pipe") << Special::Pipe << PathKind::Other;
        QTest::newRow("link to a named pipe") << Special::LinkToPipe << PathKind::Other;
        QTest::newRow("character device") << Special::Device << PathKind::Other;
        QTest::newRow("link to a character device") << Special::LinkToDevice << PathKind::Other;
        QTest::newRow("link to nothing") << Special::LinkToNothing << PathKind::Other;
        QTest::newRow("folder") << Special::Folder << PathKind::Folder;
        QTest::newRow("link to a folder") << Special::LinkToFolder << PathKind::Folder;
    }
    // Nothing reads, writes or copies onto them, and they stay as they were.
    void specialFilesAreNeverOpened()
    {
        const Watchdog watchdog(20); // an open pipe would block here
        TestHome home;
        const QString path = home.native("Settings.dat");
        if (!makeSpecial(FETCH(Special, kind), path))
            QSKIP("the system doesn't let this test make a device");
        const QStringList before = entries(home.path());
        const QString described = describePath(path);
        QCOMPARE(int(pathKind(path)), int(FETCH(PathKind, expected)));

        QCOMPARE(readRegularFile(path, kSettingsFileLimit), std::optional<QByteArray>());
        QCOMPARE(readSettingsFile(path), std::optional<QString>());
        QVERIFY(!writeFileSafely(path, "new"));
        QVERIFY(!writeFileQuickly(path, "new"));
        home.writeFile("source.dat", "new");
        QVERIFY(!home.fs.copyFile(u"C:\\source.dat"_s, u"C:\\Settings.dat"_s));
        QVERIFY(!home.fs.copyFile(u"C:\\Settings.dat"_s, u"C:\\copy.dat"_s)); // as a source
        QCOMPARE(home.fs.isSpecialFile(u"C:\\Settings.dat"_s),
                 FETCH(PathKind, expected) == PathKind::Other);

        QCOMPARE(describePath(path), described);
        QCOMPARE(entries(home.path()),
                 sorted(before + QStringList{"source.dat"})); // nothing staged
    }

    // A settings file kept elsewhere through a link: read, and replaced with
    // the link kept.
    void linkToRegularFileIsFollowed()
    {
        const TestHome home;
        const QString kept = home.writeFile("dotfiles/Settings.dat", "old\r\n");
        const QString link = home.native("Settings.dat");
        QVERIFY(QFile::link(kept, link));
        QCOMPARE(int(pathKind(link)), int(PathKind::Regular));
        QCOMPARE(readSettingsFile(link), std::optional(u"old\r\n"_s));
        QVERIFY(writeFileSafely(link, "new\r\n"));
        QCOMPARE(QFileInfo(link).symLinkTarget(), kept);
        QCOMPARE(home.readFile("dotfiles/Settings.dat"), QByteArray("new\r\n"));
        QCOMPARE(entries(home.native("dotfiles")), QStringList{"Settings.dat"});
    }

    void readsAreBounded_data()
    {
        QTest::addColumn<qint64>("size");
        QTest::addColumn<qint64>("limit");
        QTest::addColumn<bool>("read");
        QTest::newRow("settings file of 1 MB") << kSettingsFileLimit << kSettingsFileLimit << true;
        QTest::newRow("settings file a byte larger")
            << kSettingsFileLimit + 1 << kSettingsFileLimit << false;
        QTest::newRow("list larger than any list") << kListFileLimit + 1 << kListFileLimit << false;
    }
    // A larger file isn't read at all (the list row is a sparse file of 3 GB).
    void readsAreBounded()
    {
        const TestHome home;
        const QString path = home.writeFile("big.txt", "a");
        QVERIFY(QFile::resize(path, FETCH(qint64, size)));
        QElapsedTimer timer;
        timer.start();
        const auto bytes = readRegularFile(path, FETCH(qint64, limit));
        QCOMPARE(bool(bytes), FETCH(bool, read));
        if (bytes)
            QCOMPARE(bytes->size(), FETCH(qint64, size));
        QVERIFY(timer.elapsed() < 1000);
    }

    void writeUnderFileSizeLimitFails_data()
    {
        QTest::addColumn<int>("how"); // 0 synced, 1 quick, 2 copy
        QTest::newRow("synced write") << 0;
        QTest::newRow("quick write") << 1;
        QTest::newRow("copy") << 2;
    }
    // A limit of 1000 bytes cuts the write of 5000: it says so, and the old
    // bytes stay, with nothing staged left beside them.
    void writeUnderFileSizeLimitFails()
    {
        TestHome home;
        const QByteArray old(2000, 'o');
        const QByteArray next(5000, 'n');
        const QString target = home.writeFile("CommandList.txt", old);
        home.writeFile("source.txt", next);
        const int how = FETCH(int, how);
        const bool reported = underFileSizeLimit(1000, [&] {
            const bool written =
                how == 0   ? writeFileSafely(target, next)
                : how == 1 ? writeFileQuickly(target, next)
                           : home.fs.copyFile(u"C:\\source.txt"_s, u"C:\\CommandList.txt"_s);
            return !written;
        });
        QVERIFY2(reported, "the cut write was reported as done");
        QCOMPARE(home.readFile("CommandList.txt"), old);
        QCOMPARE(entries(home.path()), (QStringList{"CommandList.txt", "source.txt"}));
        QVERIFY(writeFileSafely(target, next)); // without the limit it goes through
        QCOMPARE(home.readFile("CommandList.txt"), next);
    }

    void stagedFileNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("owner"); // 0: not a staged file
        QTest::newRow("settings record") << u".DirecData.ran.lumenta-4242-aZ09xy"_s << 4242;
        QTest::newRow("name with dots and blanks") << u".my list.v2.lst.lumenta-7-AAAAAA"_s << 7;
        QTest::newRow("no leading dot") << u"DirecData.ran.lumenta-4242-aZ09xy"_s << 0;
        QTest::newRow("Qt's staged name") << u"DirecData.ran.Xy12ab"_s << 0;
        QTest::newRow("five characters") << u".a.lumenta-12-abcde"_s << 0;
        QTest::newRow("no process number") << u".a.lumenta--abcdef"_s << 0;
        QTest::newRow("signed number") << u".a.lumenta-+12-abcdef"_s << 0;
    }
    void stagedFileNames()
    {
        const auto owner = stagedFileOwner(FETCH(QString, name));
        QCOMPARE(owner.value_or(0), FETCH(int, owner));
    }

    // A write staged under the recognised name; a file left by an ended
    // process and older than a minute goes, everything else stays.
    void staleStagedFilesAreRemoved()
    {
        const TestHome home;
        home.writeFile("DirecData.ran", "record");
        StagedFile staged(home.native("DirecData.ran"), Durability::Synced);
        QVERIFY(staged.isOpen());
        const QStringList during = entries(home.path());
        QCOMPARE(during.size(), 2);
        QCOMPARE(stagedFileOwner(during.first()), std::optional<pid_t>(getpid()));

        const QString dead = QString::number(endedProcess());
        const QString mine = QString::number(getpid());
        const QStringList stale = {u".DirecData.ran.lumenta-"_s + dead + u"-abc123"_s,
                                   u".TempList.Lst.lumenta-"_s + dead + u"-ZZ99zz"_s};
        const QStringList kept = {u".RunFile.Lst.lumenta-"_s + dead + u"-fresh1"_s,
                                  u".SelectFile.txt.lumenta-"_s + mine + u"-mine12"_s,
                                  u"DirecData.ran.Xy12ab"_s, u"photo.lumenta-1-abcdef.jpg"_s};
        for (const QString& name : stale + kept) {
            home.writeFile(name, "x");
            if (!name.contains(u"fresh"_s))
                ageFile(home.native(name), 120);
        }
        QCOMPARE(removeStaleStagedFiles(home.path()), 2);
        QCOMPARE(entries(home.path()), sorted(during + kept));
    }
};

QTEST_APPLESS_MAIN(TestHostileFiles)
#include "tst_HostileFiles.moc"
