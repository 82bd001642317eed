// Reading lists: ReadTextOfFile, CleanListFile and the drive marks of their lines.
#include "support/BasicsFixture.h"

#include "support/Fetch.h"
#include "support/OddFiles.h"

#include <QFile>

#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

QByteArray numberedLines(int count)
{
    QByteArray bytes;
    for (int i = 1; i <= count; ++i)
        bytes += "line" + QByteArray::number(i) + "\r\n";
    return bytes;
}

const QString kList = QStringLiteral("C:\\list.lst");

} // namespace

class TestBasicReading : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void read_data();
    void read();
    void unreadableFiles_data();
    void unreadableFiles();
    void progressWindow();
    void clean_data();
    void clean();
    void resolve_data();
    void resolve();
    void askedOnceForAList();
    void programFolderWithoutDrive();
};

void TestBasicReading::read_data()
{
    QTest::addColumn<QByteArray>("bytes"); // null: no file
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("stopEvents");
    QTest::addColumn<QString>("box"); // "" when none, else one beep
    const auto row = [](const char* tag, const QByteArray& bytes, const QString& text,
                        const QStringList& events = {}, const QString& box = {}) {
        QTest::newRow(tag) << bytes << text << events << box;
    };
    const auto lines = [](int n) { return QString::fromLatin1(numberedLines(n).chopped(2)); };
    row("last CR LF cut", "a\r\nb\r\n", "a\r\nb");
    row("LF lines", "a\nb\n", "a\r\nb");
    row("CR lines", "a\rb", "a\r\nb");
    row("invalid bytes", "a\xFF\r\n\x81", "a\uFFFD\r\n\uFFFD");
    row("missing", QByteArray(), "", {"unload"}, "ファイルが見つかりません。");
    row("999: no window", numberedLines(999), lines(999));
    row("35000 fit", numberedLines(35000), lines(35000), {"show"});
    row("35001 overrun", numberedLines(35001), "", {"show", "unload"},
        "インデックスが有効範囲にありません。");
}

void TestBasicReading::read()
{
    BasicsFixture f;
    QFETCH(QByteArray, bytes);
    QFETCH(QString, box);
    if (!bytes.isNull())
        f.home.writeFile("list.lst", bytes);
    f.state.StopRequested = true; // cleared by the reader
    QCOMPARE(f.basics.ReadTextOfFile(kList), FETCH(QString, text));
    QVERIFY(!f.state.StopRequested);
    QCOMPARE(f.ui.boxes, box.isEmpty() ? QStringList() : QStringList{box});
    QCOMPARE(f.ui.beeps, box.isEmpty() ? 0 : 1);
    QCOMPARE(f.host.stopEvents, FETCH(QStringList, stopEvents));
}

void TestBasicReading::unreadableFiles_data()
{
    QTest::addColumn<int>("kind"); // a OddFile, or -1: a file of `size` bytes
    QTest::addColumn<qint64>("size");
    QTest::addColumn<qint64>("limit");
    QTest::addColumn<QString>("box");
    const QString access = QStringLiteral("パス/ファイル アクセス エラーです。");
    const QString memory = QStringLiteral("メモリが不足しています。");
    QTest::newRow("named pipe") << int(OddFile::Pipe) << 0LL << kListFileLimit << access;
    QTest::newRow("link to a device")
        << int(OddFile::LinkToDevice) << 0LL << kListFileLimit << access;
    QTest::newRow("folder") << int(OddFile::Folder) << 0LL << kListFileLimit << access;
    QTest::newRow("settings file over 1 MB")
        << -1 << kSettingsFileLimit + 1 << kSettingsFileLimit << memory;
    QTest::newRow("list over its largest size")
        << -1 << kListFileLimit + 1 << kListFileLimit << memory;
}

// What isn't a regular file, or is larger than the reader takes, reads as
// a file that can't be read: "", a beep and the error's box; never opened,
// never read into memory.
void TestBasicReading::unreadableFiles()
{
    const Watchdog watchdog(20);
    BasicsFixture f;
    const QString native = f.home.native(QStringLiteral("list.lst"));
    if (FETCH(int, kind) < 0) {
        f.home.writeFile("list.lst", "a");
        QVERIFY(QFile::resize(native, FETCH(qint64, size))); // sparse
    } else if (!makeOddFile(OddFile(FETCH(int, kind)), native)) {
        QSKIP("the system doesn't let this test make a device");
    }
    const QString box = FETCH(QString, box);
    QCOMPARE(f.basics.ReadTextOfFile(kList, FETCH(qint64, limit)), QString());
    QCOMPARE(f.ui.boxes, QStringList{box});
    if (FETCH(qint64, limit) == kListFileLimit) {
        // A folder is no file to clean at all: no second box.
        const bool folder = FETCH(int, kind) == int(OddFile::Folder);
        QCOMPARE(f.basics.CleanListFile(kList), 0);
        QCOMPARE(f.ui.boxes, folder ? QStringList{box} : (QStringList{box, box}));
    }
    QVERIFY(f.ui.beeps >= 1);
}

void TestBasicReading::progressWindow()
{
    // The line every 50 lines from the 1000th, then the joined count.
    BasicsFixture f;
    f.home.writeFile("list.lst", numberedLines(1100));
    f.basics.ReadTextOfFile(kList);
    QCOMPARE(f.host.stopTexts.mid(0, 3), (QStringList{"line1000", "line1050", "line1100"}));
    QCOMPARE(f.host.stopTexts.last(), QStringLiteral("1150"));
}

void TestBasicReading::clean_data()
{
    QTest::addColumn<QByteArray>("bytes"); // null: no file
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("after"); // null: still no file
    const auto row = [](const char* tag, const QByteArray& bytes, int count,
                        const QByteArray& after) { QTest::newRow(tag) << bytes << count << after; };
    row("blank lines dropped, ends trimmed",
        "a.jpg\r\n\r\n   \r\n b.jpg @WITH=c.wav ENDWITH \r\n\r\n", 2,
        "a.jpg\r\nb.jpg @WITH=c.wav ENDWITH\r\n");
    row("25 blanks before a name", QByteArray(25, ' ') + "a.jpg", 1, "a.jpg\r\n");
    row("trailing ideographic blank stays", "a.jpg\xE3\x80\x80\n", 1, "a.jpg\x81\x40\r\n");
    row("list folder mark", "%:\\pics\\a.jpg", 1, "C:\\shows\\a.jpg\r\n");
    row("blank lines only untouched", "\r\n  \r\n", 0, "\r\n  \r\n");
    row("missing", QByteArray(), 0, QByteArray());
}

void TestBasicReading::clean()
{
    BasicsFixture f;
    f.state.StartFileName = QStringLiteral("C:\\shows\\show.lst");
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, after);
    if (!bytes.isNull())
        f.home.writeFile("list.lst", bytes);
    QCOMPARE(f.basics.CleanListFile(kList), FETCH(int, count));
    QCOMPARE(f.home.exists("list.lst"), !after.isNull());
    if (!after.isNull())
        QCOMPARE(f.home.readFile("list.lst"), after);
    QVERIFY(f.ui.boxes.isEmpty());
}

void TestBasicReading::resolve_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("programFolder");
    QTest::addColumn<QString>("pairBefore"); // "from|to"
    QTest::addColumn<QString>("answer");     // drive typed into the drive window
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("pairAfter");
    QTest::addColumn<int>("asked");
    const auto row = [](const char* tag, const QString& line, const QString& programFolder,
                        const QString& pairBefore, const QString& answer, const QString& result,
                        const QString& pairAfter, int asked) {
        QTest::newRow(tag) << line << programFolder << pairBefore << answer << result << pairAfter
                           << asked;
    };
    row("mark before an address", "*:http://example.invalid/a\\\\b.html", "Z:\\usr\\bin", "|", "",
        "http://example.invalid/a\\b.html", "|", 0);
    row("program drive", "*:\\pics\\a.jpg @WITH=*:\\snd\\b.wav ENDWITH", "Z:\\usr\\bin", "|", "",
        "Z:\\pics\\a.jpg @WITH=Z:\\snd\\b.wav ENDWITH", "*:|Z:", 0);
    row("asked drive", "?:\\pics\\a.jpg @WITH=?:\\snd\\b.wav ENDWITH", "Z:\\usr\\bin", "|",
        "d:", "D:\\pics\\a.jpg @WITH=D:\\snd\\b.wav ENDWITH", "?:|D:", 1);
    row("doubled backslash collapsed", "?:\\\\pics\\a.jpg", "", "?:|E:", "", "E:\\pics\\a.jpg",
        "?:|E:", 0);
    row("list folder twice, bare name", "%:a.jpg @WITH=%:\\x\\b.wav ENDWITH", "", "|", "",
        "C:\\shows\\a.jpg @WITH=C:\\shows\\b.wav ENDWITH", "%:|", 0);
    row("later line without mark", "C:\\a.jpg", "", "?:|D:", "", "C:\\a.jpg", "?:|D:", 0);
    row("later line with the mark", "?:\\b.jpg", "", "?:|D:", "", "D:\\b.jpg", "?:|D:", 0);
}

void TestBasicReading::resolve()
{
    BasicsFixture f;
    f.state.ProgramFolder = FETCH(QString, programFolder);
    f.state.StartFileName = QStringLiteral("C:\\shows\\show.lst");
    const QStringList before = FETCH(QString, pairBefore).split('|');
    f.state.ForcedDriveFrom = before[0];
    f.state.ForcedDriveTo = before[1];
    QFETCH(QString, answer);
    f.host.onAskDrive = [&f, answer](const QString&) {
        f.state.ForcedDriveFrom = QStringLiteral("?:");
        f.state.ForcedDriveTo = answer.toUpper();
    };
    QCOMPARE(f.basics.ResolveDriveName(FETCH(QString, line)), FETCH(QString, result));
    QCOMPARE(f.state.ForcedDriveFrom + '|' + f.state.ForcedDriveTo, FETCH(QString, pairAfter));
    QCOMPARE(f.host.askedMarks.size(), FETCH(int, asked));
    QVERIFY(f.ui.boxes.isEmpty());
}

void TestBasicReading::askedOnceForAList()
{
    // The user closes the window twice without a drive, then gives one.
    BasicsFixture f;
    int calls = 0;
    f.host.onAskDrive = [&](const QString&) {
        if (++calls == 3)
            f.state.ForcedDriveTo = QStringLiteral("F:");
    };
    QCOMPARE(f.basics.ResolveDriveName(QStringLiteral("?:\\a.jpg")), QStringLiteral("F:\\a.jpg"));
    QCOMPARE(f.basics.ResolveDriveName(QStringLiteral("?:\\b.jpg")), QStringLiteral("F:\\b.jpg"));
    QCOMPARE(calls, 3);
}

void TestBasicReading::programFolderWithoutDrive()
{
    BasicsFixture f;
    f.state.ProgramFolder = QStringLiteral("/usr/bin");
    QCOMPARE(f.basics.ResolveDriveName(QStringLiteral("*:\\a.jpg")), QStringLiteral("*:\\a.jpg"));
    QCOMPARE(f.ui.boxes, QStringList{"強制ドライブ名を正しく検出していません。"});
}

QTEST_GUILESS_MAIN(TestBasicReading)
#include "tst_BasicReading.moc"
