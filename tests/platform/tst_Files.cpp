// The program's files on disk. Text: Shift-JIS bytes as Windows writes them,
// UTF-8 with and without a byte-order mark, damaged bytes, fields cut to a
// byte width, the parting of lines. Whole-file writes that replace the old
// file completely or not at all, even when the process dies in the middle or
// a file size limit cuts them short. Files that fight back: pipes, devices
// and links where a file should be, files larger than any the program reads,
// and staged files that a killed process left behind.
#include "platform/FileSystem.h"
#include "platform/RegularFile.h"
#include "platform/SafeFile.h"
#include "platform/TextCodec.h"

#include "support/Fetch.h"
#include "support/OddFiles.h"
#include "support/TestHome.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <csignal>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utime.h>

using namespace lumen;
using namespace lumen::text;
using namespace lumen::test;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(lumen::test::OddFile)
Q_DECLARE_METATYPE(lumen::PathKind)

namespace {

QByteArray hex(const char* digits)
{
    return QByteArray::fromHex(digits);
}

const QByteArray kBom = hex("EF BB BF");

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

class TestFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void decodeBytes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("expected");
        const QChar bad = QChar::ReplacementCharacter;
        QTest::newRow("CP932 katakana") << hex("83 74 83 40 83 43 83 8B") << u"ファイル"_s;
        QTest::newRow("CP932 trail byte 5C") << hex("95 5C 2E 6A 70 67") << u"表.jpg"_s;
        QTest::newRow("UTF-8 without BOM")
            << hex("E3 83 95 E3 82 A1 E3 82 A4 E3 83 AB") << u"ファイル"_s;
        QTest::newRow("UTF-8 outside CP932") << hex("ED 95 9C F0 9F 98 80") << u"한😀"_s;
        QTest::newRow("BOM before ASCII") << kBom + "a\r\n" << u"a\r\n"_s;
        QTest::newRow("BOM before a BOM") << kBom + kBom + "a" << u"\uFEFFa"_s;
        QTest::newRow("lone lead byte at the end") << hex("41 81") << u"A"_s + bad;
        QTest::newRow("lead byte with bad trail") << hex("81 20 41") << bad + u" A"_s;
        // Row 85 of the double-byte table is empty: the pair is one bad
        // character, and its trail byte no "@".
        QTest::newRow("unmapped pair") << hex("85 40 41") << bad + u"A"_s;
        QTest::newRow("unmapped pair before a character") << hex("85 9F 83 74") << bad + u"フ"_s;
        QTest::newRow("bad byte between characters")
            << hex("83 74 FF 83 40 A0 83 43") << u"フ"_s + bad + u"ァ"_s + bad + u"イ"_s;
    }
    void decodeBytes() { QCOMPARE(decode(FETCH(QByteArray, bytes)), FETCH(QString, expected)); }

    // A list of the largest size the program takes, with one damaged byte in
    // the middle: every line before and after it reads.
    void largeListDecodesEveryLine()
    {
        const QByteArray line = hex("83 74 83 40 83 43 83 8B") + " C:\\pics\\" +
                                hex("BA D2 DD C4") + ".jpg,9999," + hex("81 60 87 40") +
                                QByteArray(60, 'x') + "\r\n";
        const int count = 32767;
        QByteArray bytes = line.repeated(count);
        bytes[line.size() * (count / 2) + 2] = '\xFF'; // in place of the second lead byte

        const QStringList lines = lumen::text::splitLines(decode(bytes));
        QCOMPARE(lines.size(), count);
        const QString expected = u"ファイル C:\\pics\\ｺﾒﾝﾄ.jpg,9999,～①"_s + QString(60, u'x');
        QCOMPARE(lines.first(), expected);
        QCOMPARE(lines.last(), expected);
        QCOMPARE(lines[count / 2], QString(expected).replace(1, 1, u"\uFFFD@"_s));
        QCOMPARE(lines[count / 2 + 1], expected);
    }

    void encodeCp932_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<QByteArray>>("expected");
        const std::optional<QByteArray> none;
        QTest::newRow("ASCII with backslash")
            << u"C:\\a.jpg"_s << std::optional(hex("43 3A 5C 61 2E 6A 70 67"));
        QTest::newRow("Hangul") << u"한"_s << none;
        QTest::newRow("yen sign maps one way") << u"¥100"_s << none;
        QTest::newRow("wave dash maps one way") << u"\u301C"_s << none;
        QTest::newRow("lone surrogate") << QString(QChar(0xD800)) << none;
    }
    void encodeCp932()
    {
        const std::optional<QByteArray> bytes = lumen::text::encodeCp932(FETCH(QString, text));
        QCOMPARE(bytes, FETCH(std::optional<QByteArray>, expected));
        if (bytes)
            QCOMPARE(decodeCp932(*bytes), FETCH(QString, text));
    }

    void encodeForFile_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("Japanese in CP932")
            << u"ファイル\r\n"_s << hex("83 74 83 40 83 43 83 8B 0D 0A");
        QTest::newRow("tilde and circled one in CP932") << u"～①"_s << hex("81 60 87 40");
        QTest::newRow("Hangul in UTF-8")
            << u"ファイル한\r\n"_s
            << kBom + hex("E3 83 95 E3 82 A1 E3 82 A4 E3 83 AB ED 95 9C 0D 0A");
        QTest::newRow("yen sign in UTF-8") << u"¥1"_s << kBom + hex("C2 A5 31");
        // In CP932 these would be C3 BD, which reads as UTF-8 "ý".
        QTest::newRow("kana that look like UTF-8") << u"ﾃｽ"_s << kBom + hex("EF BE 83 EF BD BD");
        QTest::newRow("text that begins with U+FEFF") << u"\uFEFFa"_s << kBom + kBom + "a";
    }
    void encodeForFile()
    {
        const QByteArray bytes = lumen::text::encodeForFile(FETCH(QString, text));
        QCOMPARE(bytes, FETCH(QByteArray, expected));
        QCOMPARE(decode(bytes), FETCH(QString, text));
    }

    void encodeField_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("width");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("CP932 cut inside a character")
            << u"ファイル"_s << 7 << hex("83 74 83 40 83 43");
        QTest::newRow("CP932 cut after ASCII") << u"aファ"_s << 2 << hex("61");
        QTest::newRow("CP932 first character too wide") << u"ファイル"_s << 1 << QByteArray();
        QTest::newRow("CP932 trail byte 5C") << u"表a"_s << 2 << hex("95 5C");
        QTest::newRow("UTF-8 cut inside a character") << u"aファ한"_s << 5 << hex("61 E3 83 95");
        QTest::newRow("UTF-8 first character too wide") << u"한a"_s << 2 << QByteArray();
        QTest::newRow("kana that look like UTF-8")
            << u"ﾃｽ.jpg"_s << 20 << hex("EF BE 83 EF BD BD 2E 6A 70 67");
    }
    void encodeField()
    {
        const QString text = FETCH(QString, text);
        const QByteArray field = lumen::text::encodeField(text, FETCH(int, width));
        QCOMPARE(field, FETCH(QByteArray, expected));
        QVERIFY(text.startsWith(decode(field)));
    }

    void splitLines_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("mixed") << u"a\r\nb\nc\rd"_s << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
        QTest::newRow("empty last line") << u"a\r\n\r\n"_s << QStringList{u"a"_s, QString()};
        QTest::newRow("LF then CR is two breaks") << u"\n\r"_s << QStringList{QString(), QString()};
        QTest::newRow("CR before CR LF") << u"a\r\r\nb"_s << QStringList{u"a"_s, QString(), u"b"_s};
        QTest::newRow("blanks and tabs kept")
            << u" a \t\r\n\t"_s << QStringList{u" a \t"_s, u"\t"_s};
    }
    void splitLines()
    {
        QCOMPARE(lumen::text::splitLines(FETCH(QString, text)), FETCH(QStringList, expected));
    }

    void writeReplacesWholeFile()
    {
        const TestHome home;
        const QString target = home.native("Settings.dat");
        QCOMPARE(readTextFile(target), std::optional<QString>()); // missing
        home.writeFile("Settings.dat", QByteArray(100, 'x'));
        QVERIFY(writeFileSafely(target, "ab"));
        QCOMPARE(home.readFile("Settings.dat"), QByteArray("ab"));
        QCOMPARE(entries(home.path()), QStringList{"Settings.dat"}); // no temporary file left
        QVERIFY(writeFileSafely(target, QByteArray()));
        QCOMPARE(readTextFile(target), std::optional(QString())); // empty, yet there
    }

    void failedWriteLeavesNothing()
    {
        const TestHome home;
        const QString folder = home.native("f");
        QVERIFY(!writeFileSafely(folder + u"/a.lst"_s, "new")); // the folder is missing
        QVERIFY(!QFile::exists(folder));
        QVERIFY(QDir().mkpath(folder));
        QVERIFY(!writeFileSafely(folder, "new")); // the target is a folder
        QVERIFY(QFileInfo(folder).isDir());
        QCOMPARE(entries(home.path()), QStringList{"f"});
    }

    void interruptedWriteKeepsOldFile_data()
    {
        QTest::addColumn<bool>("hasOld");
        QTest::addColumn<bool>("killed"); // by a signal, else by _exit
        QTest::newRow("old file, process killed") << true << true;
        QTest::newRow("no old file, process exits") << false << false;
    }
    // A child process writes new bytes and dies just before they replace the
    // target. The target must then be the old file, whole, or still absent.
    void interruptedWriteKeepsOldFile()
    {
        const bool hasOld = FETCH(bool, hasOld);
        const bool killed = FETCH(bool, killed);
        const TestHome home;
        const QString target = home.native("RunFile.Lst");
        const QByteArray old = QByteArray("old line\r\n").repeated(1000);
        const QByteArray next = QByteArray("new\r\n").repeated(5000);
        if (hasOld)
            home.writeFile("RunFile.Lst", old);

        const pid_t child = fork();
        QVERIFY(child >= 0);
        if (child == 0) {
            testing::setBeforeCommitHook([killed] {
                if (killed)
                    std::raise(SIGKILL);
                _exit(1);
            });
            writeFileSafely(target, next);
            _exit(2); // the hook never ran
        }
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        if (killed)
            QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
        else
            QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 1);
        QCOMPARE(QFile::exists(target), hasOld);
        if (hasOld)
            QCOMPARE(home.readFile("RunFile.Lst"), old);

        QVERIFY(writeFileSafely(target, next)); // the next write goes through as usual
        QCOMPARE(home.readFile("RunFile.Lst"), next);
    }

    void specialFilesAreNeverOpened_data()
    {
        QTest::addColumn<OddFile>("kind");
        QTest::addColumn<PathKind>("expected");
        QTest::newRow("named pipe") << OddFile::Pipe << PathKind::Other;
        QTest::newRow("link to a named pipe") << OddFile::LinkToPipe << PathKind::Other;
        QTest::newRow("character device") << OddFile::Device << PathKind::Other;
        QTest::newRow("link to a character device") << OddFile::LinkToDevice << PathKind::Other;
        QTest::newRow("link to nothing") << OddFile::LinkToNothing << PathKind::Other;
        QTest::newRow("folder") << OddFile::Folder << PathKind::Folder;
        QTest::newRow("link to a folder") << OddFile::LinkToFolder << PathKind::Folder;
    }
    // Nothing reads, writes or copies onto them, and they stay as they were.
    void specialFilesAreNeverOpened()
    {
        const Watchdog watchdog(20); // an open pipe would block here
        TestHome home;
        const QString path = home.native("Settings.dat");
        if (!makeOddFile(FETCH(OddFile, kind), path))
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

QTEST_APPLESS_MAIN(TestFiles)
#include "tst_Files.moc"
