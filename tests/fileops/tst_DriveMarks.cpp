// ResolveDriveName: the three drive marks of list lines.
#include "support/BasicsFixture.h"

#include "support/Fetch.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestDriveMarks : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void resolve_data();
    void resolve();
    void askedOnceForAList();
    void programFolderWithoutDrive();
};

void TestDriveMarks::resolve_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("programFolder");
    QTest::addColumn<QString>("forcedFrom"); // pair before the call
    QTest::addColumn<QString>("forcedTo");
    QTest::addColumn<QString>("answer"); // drive typed into the drive window
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("pairAfter"); // "from|to"
    QTest::addColumn<int>("asked");
    const auto row = [](const char* tag, const QString& line, const QString& programFolder,
                        const QString& forcedFrom, const QString& forcedTo, const QString& answer,
                        const QString& result, const QString& pairAfter, int asked) {
        QTest::newRow(tag) << line << programFolder << forcedFrom << forcedTo << answer << result
                           << pairAfter << asked;
    };
    row("mark before an address", "*:http://example.invalid/a\\\\b.html", "Z:\\usr\\bin", "", "",
        "", "http://example.invalid/a\\b.html", "|", 0);
    row("program drive", "*:\\pics\\a.jpg @WITH=*:\\snd\\b.wav ENDWITH", "Z:\\usr\\bin", "", "", "",
        "Z:\\pics\\a.jpg @WITH=Z:\\snd\\b.wav ENDWITH", "*:|Z:", 0);
    row("asked drive", "?:\\pics\\a.jpg @WITH=?:\\snd\\b.wav ENDWITH", "Z:\\usr\\bin", "", "",
        "d:", "D:\\pics\\a.jpg @WITH=D:\\snd\\b.wav ENDWITH", "?:|D:", 1);
    row("doubled backslash collapsed", "?:\\\\pics\\a.jpg", "", "?:", "E:", "", "E:\\pics\\a.jpg",
        "?:|E:", 0);
    row("list folder twice, bare name", "%:a.jpg @WITH=%:\\x\\b.wav ENDWITH", "", "", "", "",
        "C:\\shows\\a.jpg @WITH=C:\\shows\\b.wav ENDWITH", "%:|", 0);
    row("a later line without mark", "C:\\a.jpg", "", "?:", "D:", "", "C:\\a.jpg", "?:|D:", 0);
    row("a later line with the mark", "?:\\b.jpg", "", "?:", "D:", "", "D:\\b.jpg", "?:|D:", 0);
}

void TestDriveMarks::resolve()
{
    BasicsFixture f;
    f.state.ProgramFolder = FETCH(QString, programFolder);
    f.state.StartFileName = QStringLiteral("C:\\shows\\show.lst");
    f.state.ForcedDriveFrom = FETCH(QString, forcedFrom);
    f.state.ForcedDriveTo = FETCH(QString, forcedTo);
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

void TestDriveMarks::askedOnceForAList()
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

void TestDriveMarks::programFolderWithoutDrive()
{
    BasicsFixture f;
    f.state.ProgramFolder = QStringLiteral("/usr/bin");
    const QString line = QStringLiteral("*:\\a.jpg");
    QCOMPARE(f.basics.ResolveDriveName(line), line);
    QCOMPARE(f.ui.boxes, QStringList{"強制ドライブ名を正しく検出していません。"});
}

QTEST_GUILESS_MAIN(TestDriveMarks)
#include "tst_DriveMarks.moc"
