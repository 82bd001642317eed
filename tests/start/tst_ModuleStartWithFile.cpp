// Starting with files: the command line read, TempList0.dat, TempList.lst
// and the windows asked to show it.
#include "start/ModuleStartWithFile.h"

#include "support/BasicsFixture.h"
#include "support/Fetch.h"

#include <QDir>
#include <QTest>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

const QString kOccupied = QStringLiteral("C:\\Lumentas\\TempList.lst\r\n"
                                         "This file name is ocupied by this program. "
                                         "Please select other files");
const QString kPositionsFile = u"Lumentas/ForProgramRun_KDR/TempList0.dat"_s;
const QString kStartListFile = u"Lumentas/TempList.lst"_s;

// The fixture with the hooks recording their calls.
struct StartFixture : BasicsFixture {
    QStringList calls;
    ModuleStartWithFile module{basics,
                               {[this] { calls << u"cyber view on"_s; },
                                [this] { calls << u"show main and stop"_s; },
                                [this](const QString& list) { calls << u"open "_s + list; },
                                [this] { calls << u"end"_s; },
                                {}}};

    StartFixture()
    {
        home.writeFile("my pics/a b.jpg", "x");
        home.writeFile("my pics/sub/c.jpg", "x");
        home.writeFile("shows/s.lst", "C:\\p\\1.jpg\r\nskip\r\nC:\\p\\2.jpg\r\n");
        home.writeFile("plain.jpg", "x");
        home.makeFolder("work");
    }

    // "~" stands for the home folder.
    QStringList native(const QStringList& arguments) const
    {
        QStringList paths;
        for (QString argument : arguments)
            paths << (argument.startsWith(u'~') ? argument.replace(0, 1, home.path()) : argument);
        return paths;
    }
};

} // namespace

class TestModuleStartWithFile : public QObject {
    Q_OBJECT

private:
    QString workingFolder_;

private Q_SLOTS:
    void init() { workingFolder_ = QDir::currentPath(); }
    void cleanup() { QDir::setCurrent(workingFolder_); }

    void parseCommandLine_data();
    void parseCommandLine();
    void positionsInAnyCase();
    void startWithFile_data();
    void startWithFile();
};

void TestModuleStartWithFile::parseCommandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("commandLine");
    QTest::addColumn<QByteArray>("positions");

    QTest::newRow("names with blanks")
        << QStringList{"~/my pics/a b.jpg", "~/c.jpg"} << "C:\\my pics\\a b.jpg C:\\c.jpg"
        << QByteArray("Pos, 1, 18\r\nPos, 20, 27\r\nC:\\my pics\\a b.jpg C:\\c.jpg\r\n");
    QTest::newRow("relative names, from the working folder")
        << QStringList{"x y.jpg", "../up.jpg", "./sub/"}
        << "C:\\work\\x y.jpg C:\\up.jpg C:\\work\\sub"
        << QByteArray("Pos, 1, 15\r\nPos, 17, 25\r\nPos, 27, 37\r\n"
                      "C:\\work\\x y.jpg C:\\up.jpg C:\\work\\sub\r\n");
    QTest::newRow("Japanese name, written in Shift-JIS")
        << QStringList{u"~/写真/a.jpg"_s} << u"C:\\写真\\a.jpg"_s
        << QByteArray("Pos, 1, 11\r\nC:\\\x8e\xca\x90\x5e\\a.jpg\r\n");
    QTest::newRow("no names") << QStringList{} << "" << QByteArray("\r\n");
}

void TestModuleStartWithFile::parseCommandLine()
{
    StartFixture f;
    QDir::setCurrent(f.home.native("work"));
    QVERIFY(f.module.ParseCommandLine(f.native(FETCH(QStringList, arguments))));
    QCOMPARE(f.module.CommandLineText(), FETCH(QString, commandLine));
    QCOMPARE(f.home.readFile(kPositionsFile), FETCH(QByteArray, positions));
    QCOMPARE(f.host.stopEvents, QStringList{"show"});
    QVERIFY(f.ui.boxes.isEmpty());
    QVERIFY(f.calls.isEmpty());
}

void TestModuleStartWithFile::positionsInAnyCase()
{
    StartFixture f;
    QVERIFY(f.module.ParseCommandLine(f.native({"~/plain.jpg", "~/shows/s.lst"})));
    // Lines are taken in their order when the first field is "POS" in any
    // case; other lines and bad positions are passed over.
    f.home.writeFile(kPositionsFile,
                     "pos, 14, 27\r\nPOSITION, 1, 12\r\n Pos , 1, 12\r\n"
                     "Pos, 0, 3\r\nPos, 9, 5\r\nC:\\plain.jpg C:\\shows\\s.lst\r\n");
    f.module.BuildStartList();
    QCOMPARE(f.home.readFile(kStartListFile),
             QByteArray("C:\\p\\1.jpg\r\nC:\\p\\2.jpg\r\nC:\\plain.jpg\r\n"));
    QVERIFY(!f.home.exists(kPositionsFile));
    QVERIFY(f.calls.isEmpty());
}

void TestModuleStartWithFile::startWithFile_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("stopAt");      // the events run at which Stop is pressed, 0 for none
    QTest::addColumn<QByteArray>("list"); // empty: the name is ours, the program ends

    QTest::newRow("folder, list and file")
        << QStringList{"~/my pics", "~/shows/s.lst", "~/plain.jpg"} << 0
        << QByteArray("C:\\my pics\\a b.jpg\r\nC:\\my pics\\sub\\c.jpg\r\n"
                      "C:\\p\\1.jpg\r\nC:\\p\\2.jpg\r\nC:\\plain.jpg\r\n");
    QTest::newRow("a name that isn't there")
        << QStringList{"~/gone.jpg"} << 0 << QByteArray("C:\\gone.jpg\r\n");
    QTest::newRow("Japanese name: Shift-JIS")
        << QStringList{u"~/写真/a.jpg"_s} << 0 << QByteArray("C:\\\x8e\xca\x90\x5e\\a.jpg\r\n");
    QTest::newRow("name outside Shift-JIS: UTF-8 with its mark")
        << QStringList{u"~/café.jpg"_s} << 0
        << QByteArray("\xEF\xBB\xBF"
                      "C:\\caf\xC3\xA9.jpg\r\n");
    // Events run once per name while scanning (2), then before each name (3),
    // before the folder's listing (4), its file (5) and its sub-folder (6).
    QTest::newRow("stop ends the walk and the scan")
        << QStringList{"~/my pics", "~/plain.jpg"} << 6 << QByteArray("C:\\my pics\\a b.jpg\r\n");
    QTest::newRow("TempList.lst of the data folder")
        << QStringList{"~/Lumentas/TempList.lst"} << 0 << QByteArray();
    QTest::newRow("in other case, behind another name")
        << QStringList{"~/a.jpg", "~/lumentas/TEMPLIST.lst"} << 0 << QByteArray();
    QTest::newRow("a name that begins with it")
        << QStringList{"~/Lumentas/TempList.lst.jpg"} << 0 << QByteArray();
    QTest::newRow("TempList.lst elsewhere") << QStringList{"~/Lumentas/sub/TempList.lst"} << 0
                                            << QByteArray("C:\\Lumentas\\sub\\TempList.lst\r\n");
}

void TestModuleStartWithFile::startWithFile()
{
    StartFixture f;
    f.state.StopRequested = true; // left over: cleared first
    const int stopAt = FETCH(int, stopAt);
    f.clock.onDoEvents = [&f, stopAt] {
        if (f.clock.doEventsCount == stopAt)
            f.state.StopRequested = true;
    };
    f.module.StartWithFile(f.native(FETCH(QStringList, arguments)));
    QFETCH(QByteArray, list);
    const bool occupied = list.isEmpty();
    QCOMPARE(f.home.readFile(kStartListFile), list);
    QCOMPARE(f.home.exists(kStartListFile), !occupied);
    QVERIFY(!f.home.exists(kPositionsFile));
    QCOMPARE(f.ui.boxes, occupied ? QStringList{kOccupied} : QStringList());
    const QStringList calls = occupied ? QStringList{"end"}
                                       : QStringList{"cyber view on", "show main and stop",
                                                     "open C:\\Lumentas\\TempList.lst"};
    QCOMPARE(f.calls, calls);
    QCOMPARE(f.state.ListReady, !occupied);
    QVERIFY(!f.state.StopRequested);
}

QTEST_GUILESS_MAIN(TestModuleStartWithFile)
#include "tst_ModuleStartWithFile.moc"
