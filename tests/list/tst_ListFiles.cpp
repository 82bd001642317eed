// The dictionary and extension files, their defaults byte for byte, and the
// loader's steps on lists made by the tests.
#include "list/CommandWords.h"
#include "list/ExtTable.h"
#include "list/ListLoader.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

const char* const kSettings = "Lumentas/ForProgramRun_KDR/";

QStringList row(const ProgramState& state, int r)
{
    QStringList cells;
    for (int c = 0; c < kListColumns; ++c)
        cells << state.ListArray.at(c, r);
    return cells;
}

} // namespace

class TestListFiles : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void defaultCommandListBytes();
    void userWords_data();
    void userWords();
    void defaultExtTypeBytes();
    void extSlots_data();
    void extSlots();
    void checkExtHat_data();
    void checkExtHat();
    void load_data();
    void load();
    void loaderGuardsTheCount();
    void loaderStopsOnRequest();
};

void TestListFiles::defaultCommandListBytes()
{
    BasicsFixture f;
    PutCommandToArray(f.basics);
    const QByteArray bytes = f.home.readFile(QString(kSettings) + "CommandList.txt");
    // Shift-JIS, CR LF after every line; six lines of notes, then the words.
    QVERIFY(bytes.startsWith("\x81\x81\x81\x40\x82\xCC\x89\x45\x91\xA4\x82\xC9"));
    QVERIFY(bytes.contains("\r\n'STOPSOUND = \x83\x54\x83\x45\x83\x93\x83\x68\x83\x58\x83\x67"
                           "\x83\x62\x83\x76\r\n"));
    QVERIFY(bytes.contains("\r\n\r\nSTOPSOUND = "));
    QVERIFY(bytes.contains("\r\nOPTION=\x83\x49\x83\x76\x83\x56\x83\x87\x83\x93\x83\x52\x83\x7D"
                           "\x83\x93\x83\x68\r\n"));
    QVERIFY(bytes.contains("\r\nWITH = \x83\x67\r\nENDWITH = \x83\x66\x83\x58\r\n"));
    QVERIFY(bytes.endsWith("LISTAUTOSTARTOFF = \x83\x8A\x83\x58\x83\x67\x8E\xA9\x93\xAE\x83\x58"
                           "\x83\x5E\x81\x5B\x83\x67_OFF\r\n"));
    QCOMPARE(bytes.count("\r\n"), 6 + 34);
    // And the words it gives are the user's.
    QCOMPARE(f.state.CommandWord[kWith], QStringLiteral("ト"));
    QCOMPARE(f.state.CommandWord[kEndOption], QStringLiteral("デス"));
}

void TestListFiles::userWords_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("word");
    QTest::newRow("quoted line ignored") << "'WITH = x" << int(kWith) << "WITH";
    QTest::newRow("quote anywhere ignored") << "WITH = x'y" << int(kWith) << "WITH";
    QTest::newRow("key in lower case") << " with =  ｱﾄ " << int(kWith) << "ｱﾄ";
    QTest::newRow("unknown key ignored") << "WIDTH = x" << int(kWith) << "WITH";
    QTest::newRow("split at the first =") << "OPTION = a=b" << int(kOption) << "A=B";
}

void TestListFiles::userWords()
{
    BasicsFixture f;
    f.home.writeFile(QString(kSettings) + "CommandList.txt", FETCH(QString, file).toUtf8());
    SetCommandWords(f.basics, QStringLiteral("JP"));
    QCOMPARE(f.state.CommandWord[FETCH(int, index)], FETCH(QString, word));
    SetCommandWords(f.basics, QStringLiteral("EG")); // the all-English switch
    QCOMPARE(f.state.CommandWord[FETCH(int, index)], englishCommandWords()[FETCH(int, index)]);
}

void TestListFiles::defaultExtTypeBytes()
{
    BasicsFixture f;
    PutExtTypeToArray(f.basics);
    const QByteArray bytes = f.home.readFile(QString(kSettings) + "ExtType.dat");
    QVERIFY(bytes.startsWith("'\x82\xB1\x82\xB1\x82\xC5\x82\xCD"));
    QVERIFY(
        bytes.endsWith("\r\n\r\nBMP =\r\nJPG =\r\nICO =\r\nXV3 =\r\nCO =\r\nWRL =\r\nNFF =\r\n"
                       "WAV =\r\nMID =\r\nMOV =\r\nMPG =\r\nAVI =\r\nTXT = TEXT\r\nDAT = TEXT\r\n"
                       "EXE =\r\nHLP = \r\nLST = \r\n"));
    f.home.writeFile(QString(kSettings) + "ExtType.dat", "BMP =\r\n");
    PutExtTypeToArray(f.basics); // an existing file stays
    QCOMPARE(f.home.readFile(QString(kSettings) + "ExtType.dat"), QByteArray("BMP =\r\n"));
}

void TestListFiles::extSlots_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names"); // slots 0 to 3
    QTest::addColumn<QStringList>("markers");
    QTest::newRow("names and markers")
        << "bmp =\r\n' note\r\n\r\ntxt = text\r\nPNG= Other\r\nx"
        << QStringList{"BMP", "TXT", "PNG", "?"} << QStringList{"", "TEXT", "OTHER", ""};
    QTest::newRow("more than 50 skipped lines")
        << QString("'\r\n").repeated(51) + "AVI =" << QStringList{"OLD0", "OLD1", "OLD2", "OLD3"}
        << QStringList{"M0", "M1", "M2", "M3"};
}

void TestListFiles::extSlots()
{
    StringGrid slots(kExtSlots, 2);
    for (int i = 0; i < kExtSlots; ++i) {
        slots.set(i, 0, QStringLiteral("OLD%1").arg(i));
        slots.set(i, 1, QStringLiteral("M%1").arg(i));
    }
    readExtTypeSlots(slots, FETCH(QString, text));
    QStringList names, markers;
    for (int i = 0; i < 4; ++i) {
        names << slots.at(i, 0);
        markers << slots.at(i, 1);
    }
    QCOMPARE(names, FETCH(QStringList, names));
    QCOMPARE(markers, FETCH(QStringList, markers));
}

void TestListFiles::checkExtHat_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("slotLine");
    QTest::addColumn<bool>("textAsAvi");
    QTest::addColumn<QString>("kind");
    const auto row = [](const char* tag, const char* name, const char* slotLine, bool textAsAvi,
                        const char* kind) {
        QTest::newRow(tag) << QString(name) << QString(slotLine) << textAsAvi << QString(kind);
    };
    row("picture", "C:\\a.b.jpg", "", false, "PIC");
    row("MOV, first row wins", "C:\\m.mov", "", false, "IE");
    row("text as animation", "C:\\a.dat", "", true, "AVI");
    row("cd", "D:\\Track01.cda", "", false, "CDM");
    row("slot marks PNG as text", "C:\\a.png", "PNG = TEXT", false, "TXT");
    row("other marker has no effect", "C:\\a.png", "PNG = PIC", false, "PIC");
    row("no colon", "a.jpg", "", false, "");
    row("extension with blank", "C:\\a.jpg ", "", false, "PIC");
}

void TestListFiles::checkExtHat()
{
    StringGrid slots(kExtSlots, 2);
    readExtTypeSlots(slots, FETCH(QString, slotLine));
    QCOMPARE(CheckExtHat(FETCH(QString, name), slots, FETCH(bool, textAsAvi)),
             FETCH(QString, kind));
}

void TestListFiles::load_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<int>("fileCount");
    QTest::addColumn<QStringList>("row1");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QString>("display");
    QTest::newRow("English list")
        << QByteArray("' show\r\n\r\nC:\\a.jpg @DELAY=2 ENDDELAY\r\nC:\\b.jpg @WITH=C:\\b.wav\r\n")
        << 2 << QStringList{"C:\\a.jpg", "", "2", "", ""}
        << QStringList{" There is no word ENDWITH"}
        << "C:\\a.jpg @DELAY=2 ENDDELAY\r\nC:\\b.jpg @WITH=C:\\b.wav\r\n\r";
    QTest::newRow("Shift-JIS list with user words")
        << QByteArray("C:\\\x83\x74.jpg @\x83\x49\x83\x4E\x83\x8C=4 \x83\x66\x83\x58\r\n") << 1
        << QStringList{"C:\\フ.jpg", "", "4", "", ""} << QStringList()
        << "C:\\フ.jpg @オクレ=4 デス\r\n\r";
    QTest::newRow("UTF-8 list") << QByteArray("C:\\\xE5\x86\x99\xE7\x9C\x9F.jpg\n") << 1
                                << QStringList{"C:\\写真.jpg", "", "9999", "", ""} << QStringList()
                                << "C:\\写真.jpg\r\n\r";
    QTest::newRow("one English item turns the user's words off")
        << QByteArray("a.jpg @オクレ=4 デス\r\nb.jpg @OPTION=X ENDOPTION") << 2
        << QStringList{"a.jpg", "", "9999", "", ""} << QStringList()
        << "a.jpg @オクレ=4 デス\r\nb.jpg @OPTION=X ENDOPTION\r\n\r";
    QTest::newRow("binary file") << QByteArray("\x00\x01\xFF\xFE\x81\r\n\x7F@=\x00", 10) << 2
                                 << QStringList{"\u0001\uFFFD\uFFFD\uFFFD", "", "9999", "", ""}
                                 << QStringList()
                                 << QString("\u0001\uFFFD\uFFFD\uFFFD\r\n\u007F@=\r\n\r");
}

void TestListFiles::load()
{
    BasicsFixture f;
    PutCommandToArray(f.basics);
    f.home.writeFile("show.lst", FETCH(QByteArray, list));
    QString text;
    const int count = prepareWorkingCopy(f.basics, QStringLiteral("C:\\show.lst"), &text);
    if (count == 0)
        text = f.basics.ReadTextOfFile(workingCopyName(f.basics));
    const ListFill fill = fillListArray(f.basics, text, count);
    QCOMPARE(fill.fileCount, FETCH(int, fileCount));
    QCOMPARE(row(f.state, 1), FETCH(QStringList, row1));
    QCOMPARE(f.ui.boxes, FETCH(QStringList, messages));
    QCOMPARE(fill.displayText, FETCH(QString, display));
    QCOMPARE(FixedText(f.state.DirecData.LastListFile), QStringLiteral("C:\\show.lst"));
    QCOMPARE(f.state.ListFileName, QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR\\TempList.Lst"));
    QVERIFY(f.home.exists(QString(kSettings) + "TempList.Lst"));
}

void TestListFiles::loaderGuardsTheCount()
{
    BasicsFixture f;
    QByteArray lines;
    for (int i = 0; i < 33000; ++i)
        lines += "C:\\a.jpg\r\n";
    f.home.writeFile("big.lst", lines);
    QString text;
    QCOMPARE(prepareWorkingCopy(f.basics, QStringLiteral("C:\\big.lst"), &text), -1);
    QCOMPARE(f.ui.boxes, QStringList{"選択したファイル数は 33000個です。エディターでファイル数を"
                                     "32763個未満にしてください。"});
}

void TestListFiles::loaderStopsOnRequest()
{
    BasicsFixture f;
    QByteArray lines;
    for (int i = 1; i <= 500; ++i)
        lines += "C:\\p" + QByteArray::number(i) + ".jpg\r\n";
    f.home.writeFile("s.lst", lines);
    QString text;
    const int count = prepareWorkingCopy(f.basics, QStringLiteral("C:\\s.lst"), &text);
    f.clock.onDoEvents = [&] {
        if (f.clock.doEventsCount == 2) // at line 100
            f.state.StopRequested = true;
    };
    f.clock.doEventsCount = 0;
    const ListFill fill = fillListArray(f.basics, text, count);
    QVERIFY(fill.stopped);
    QCOMPARE(f.state.ListArray.at(kColMain, 99), QStringLiteral("C:\\p99.jpg"));
    QCOMPARE(f.state.ListArray.at(kColMain, 100), QString());
}

QTEST_GUILESS_MAIN(TestListFiles)
#include "tst_ListFiles.moc"
