// The line grammar in one table, English and the user's words; the dictionary
// and extension files, their defaults byte for byte; the loader's steps on
// lists made by the tests.
#include "list/CommandWords.h"
#include "list/ExtTable.h"
#include "list/ListGrammar.h"
#include "list/ListLoader.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/OddFiles.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

const char* const kSettings = "Lumentas/ForProgramRun_KDR/";

// A row's cells main|with|delay|comment|option.
QStringList cells(const QString& row)
{
    return row.split('|');
}

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
    void parse_data();
    void parse();
    void longLinesParseInLinearTime_data();
    void longLinesParseInLinearTime();
    void lineKinds_data();
    void lineKinds();
    void language_data();
    void language();
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
    void loaderStopsWithinALongLine();
    void readOnlyWorkingFolderReadsTheChosenList();
    void listViewCutsLongLines();
};

void TestListFiles::parse_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* tag, const QString& line, bool english, const QString& cells,
                        const QString& message) {
        QTest::newRow(tag) << line << english << cells << message;
    };
    row("all items",
        "C:\\pics\\a.jpg @WITH=C:\\snd\\a.wav ENDWITH @DELAY=5 ENDDELAY "
        "@COMMENT=<<<<<first line<<<<<second line ENDCOMMENT @OPTION=PICTURESCROLL ENDOPTION",
        true, "C:\\pics\\a.jpg|C:\\snd\\a.wav|5|<<<<<\r\nfirst line\r\nsecond line|PICTURESCROLL",
        "");
    row("items in any order", "a.jpg @OPTION=STOPSOUND ENDOPTION @WITH=b.wav ENDWITH", true,
        "a.jpg|b.wav|9999||STOPSOUND", "");
    row("lower-case end words", "a.jpg @with=b.wav endwith @delay= 3 enddelay", true,
        "a.jpg|b.wav|3||", "");
    row("mixed-case end word isn't found", "a.jpg @WITH=b.wav EndWith", true, "a.jpg||9999||",
        " There is no word ENDWITH");
    row("missing end word drops the rest", "a.jpg @DELAY=4 @WITH=b.wav ENDWITH", true,
        "a.jpg||9999||", " There is no word ENDDELAY");
    row("no @: the whole line", "a.jpg = b", true, "a.jpg = b||9999||", "");
    row("blank between @ and word: no start word", "a.jpg @ WITH=b.wav ENDWITH", true,
        "a.jpg||9999||", "");
    row("unknown word ends the items", "a.jpg @SIZE=3 ENDSIZE @DELAY=2 ENDDELAY", true,
        "a.jpg||9999||", "");
    row("unknown word without an end", "a.jpg @X=1 @WITH=b.wav ENDWITH", true, "a.jpg||9999||", "");
    row("no word before the =", "a.jpg @=x @DELAY=2 ENDDELAY", true, "a.jpg||9999||", "");
    row("items before an unknown word stay", "a.jpg @DELAY=2 ENDDELAY @SIZE=3 @WITH=b ENDWITH",
        true, "a.jpg||2||", "");
    row("start word in other case", "a.jpg @With=b.wav endwith", true, "a.jpg|b.wav|9999||", "");
    row("comment without the mark", "a.jpg @COMMENT=hello ENDCOMMENT", true,
        "a.jpg||9999|<<<<<hello|", "");
    row("@ inside a comment value",
        "a.jpg @COMMENT=<<<<<me@example.jp ENDCOMMENT @DELAY=1 ENDDELAY", true,
        "a.jpg||1|<<<<<\r\nme@example.jp|", "");
    row("user words", "a.jpg @ト=b.wav デス @オクレ=6 デス @オプションコマンド=画像スクロール デス",
        false, "a.jpg|b.wav|6||画像スクロール", "");
    row("English words with the user's set are unknown", "a.jpg @WITH=b.wav ENDWITH", false,
        "a.jpg||9999||", "");
    row("shared end word: each item ends at the next one",
        "a.jpg @コメント=<<<<<x デス @ト=b.wav デス", false, "a.jpg|b.wav|9999|<<<<<\r\nx|", "");
}

void TestListFiles::parse()
{
    QStringList words = englishCommandWords();
    if (!FETCH(bool, english))
        applyUserCommandWords(words, defaultCommandListLines().join(QStringLiteral("\r\n")));
    const ParsedLine parsed = parseListLine(FETCH(QString, line), words);
    const ListRow& r = parsed.row;
    QCOMPARE((QStringList{r.main, r.with, r.delay, r.comment, r.option}),
             cells(FETCH(QString, row)));
    QCOMPARE(parsed.missingEndWord, FETCH(QString, message));
}

void TestListFiles::longLinesParseInLinearTime_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("row");
    const int million = 1000000;
    QTest::newRow("a million @, then =") << QString(million, '@') + '=' << "||9999||";
    QTest::newRow("@= half a million times") << QString("@=").repeated(million / 2) << "||9999||";
    QTest::newRow("= then a million @") << '=' + QString(million, '@') << "=||9999||";
    // Every item's lower-case end word is looked for, and "end" stands at
    // the end of the line, so that the look can't be skipped.
    QTest::newRow("66,000 items and a lower-case end")
        << "a.jpg" + QString(" @WITH=x ENDWITH").repeated(66000) + " end"
        << "a.jpg|x|9999||";
    QTest::newRow("a million-letter unknown word")
        << "a.jpg @" + QString(million, u'語') + "=1 ENDDELAY"
        << "a.jpg||9999||";
}

// A line of a million characters of any kind parses in well under a second.
void TestListFiles::longLinesParseInLinearTime()
{
    const ListWords words(englishCommandWords());
    QElapsedTimer timer;
    timer.start();
    const ParsedLine parsed = parseListLine(FETCH(QString, line), words);
    QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed()) + " ms"));
    const ListRow& r = parsed.row;
    QCOMPARE((QStringList{r.main, r.with, r.delay, r.comment, r.option}),
             cells(FETCH(QString, row)));
}

void TestListFiles::lineKinds_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("kind");
    QTest::newRow("comment") << "' note" << int(LineKind::Comment);
    QTest::newRow("20 blanks, then a name") << QString(20, ' ') + "a.jpg" << int(LineKind::Command);
    QTest::newRow("21 blanks, then a name")
        << QString(21, ' ') + "a.jpg" << int(LineKind::TooIndented);
    QTest::newRow("a quote later on") << "a'b.jpg" << int(LineKind::Command);
}

void TestListFiles::lineKinds()
{
    QCOMPARE(int(lineKindOf(FETCH(QString, line))), FETCH(int, kind));
}

void TestListFiles::language_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("english");
    QTest::newRow("file comment counts") << "a.jpg @FILECOMMENT=x ENDFILECOMMENT" << true;
    QTest::newRow("lower case doesn't") << "a.jpg @delay=3 enddelay" << false;
    QTest::newRow("bare names") << "a.jpg\r\nb.jpg" << false;
}

void TestListFiles::language()
{
    QCOMPARE(listLanguageOf(FETCH(QString, text)), FETCH(bool, english) ? "EG" : "JP");
}

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
    QTest::addColumn<QString>("row1");
    QTest::addColumn<QStringList>("messages");
    QTest::addColumn<QString>("display");
    const auto row = [](const char* tag, const QByteArray& list, int fileCount, const QString& row1,
                        const QStringList& messages, const QString& display) {
        QTest::newRow(tag) << list << fileCount << row1 << messages << display;
    };
    row("English list",
        "' show\r\n\r\nC:\\a.jpg @DELAY=2 ENDDELAY\r\nC:\\b.jpg @WITH=C:\\b.wav\r\n", 2,
        "C:\\a.jpg||2||", {" There is no word ENDWITH"},
        "C:\\a.jpg @DELAY=2 ENDDELAY\r\nC:\\b.jpg @WITH=C:\\b.wav\r\n\r");
    row("Shift-JIS list with user words",
        "C:\\\x83\x74.jpg @\x83\x49\x83\x4E\x83\x8C=4 \x83\x66\x83\x58\r\n", 1, "C:\\フ.jpg||4||",
        {}, "C:\\フ.jpg @オクレ=4 デス\r\n\r");
    row("UTF-8 list", "C:\\\xE5\x86\x99\xE7\x9C\x9F.jpg\n", 1, "C:\\写真.jpg||9999||", {},
        "C:\\写真.jpg\r\n\r");
    row("one English item turns the user's words off",
        "a.jpg @オクレ=4 デス\r\nb.jpg @OPTION=X ENDOPTION", 2, "a.jpg||9999||", {},
        "a.jpg @オクレ=4 デス\r\nb.jpg @OPTION=X ENDOPTION\r\n\r");
    row("binary file", QByteArray("\x00\x01\xFF\xFE\x81\r\n\x7F@=\x00", 10), 2,
        "\u0001\uFFFD\uFFFD\uFFFD||9999||", {}, "\u0001\uFFFD\uFFFD\uFFFD\r\n\u007F@=\r\n\r");
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
    QCOMPARE(row(f.state, 1), cells(FETCH(QString, row1)));
    QCOMPARE(f.ui.boxes, FETCH(QStringList, messages));
    QCOMPARE(fill.displayText, FETCH(QString, display));
    QCOMPARE(FixedText(f.state.DirecData.LastListFile), QStringLiteral("C:\\show.lst"));
    QCOMPARE(f.state.ListFileName, QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR\\TempList.Lst"));
    QVERIFY(f.home.exists(QString(kSettings) + "TempList.Lst"));
}

void TestListFiles::loaderGuardsTheCount()
{
    BasicsFixture f;
    f.home.writeFile("big.lst", QByteArray("C:\\a.jpg\r\n").repeated(33000));
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
    QCOMPARE(fill.fileCount, 99);
    QCOMPARE(f.state.ListArray.at(kColMain, 99), QStringLiteral("C:\\p99.jpg"));
    QCOMPARE(f.state.ListArray.at(kColMain, 100), QString());
    QCOMPARE(f.host.stopTexts, QStringList{"50"}); // the count, every 50 lines

    // Read to its end, the count goes by every 50 lines and again as the
    // pieces are joined.
    f.state.StopRequested = false;
    f.host.stopTexts.clear();
    fillListArray(f.basics, text.left(text.indexOf(QStringLiteral("C:\\p121.jpg"))), count);
    QCOMPARE(f.host.stopTexts, (QStringList{"50", "100", "50", "100", "150"}));
}

// A list of one line of 66,000 items: events run while it is parsed, and a
// stop pressed then ends the load there.
void TestListFiles::loaderStopsWithinALongLine()
{
    BasicsFixture f;
    f.home.writeFile("s.lst",
                     "C:\\a.jpg" + QByteArray(" @WITH=x ENDWITH").repeated(66000) + "\r\n");
    QString text;
    const int count = prepareWorkingCopy(f.basics, QStringLiteral("C:\\s.lst"), &text);
    f.clock.doEventsCount = 0;
    f.clock.onDoEvents = [&] { f.state.StopRequested = true; };
    const ListFill fill = fillListArray(f.basics, text, count);
    QVERIFY(fill.stopped);
    QCOMPARE(f.clock.doEventsCount, 1);
    QCOMPARE(f.state.ListArray.at(kColMain, 1), QString());
}

// The copy to TempList.Lst fails in a read-only settings folder: the list
// chosen is read, cleaned in memory and left as it is, and the old copy
// never shows.
void TestListFiles::readOnlyWorkingFolderReadsTheChosenList()
{
    BasicsFixture f;
    PutCommandToArray(f.basics);
    const QByteArray stale = "C:\\old.jpg\r\n";
    const QByteArray chosen = "C:\\new1.jpg @DELAY=3 ENDDELAY\r\n\r\n  C:\\new2.jpg  \r\n";
    f.home.writeFile(QString(kSettings) + "TempList.Lst", stale);
    f.home.writeFile("new.lst", chosen);
    const QString folder = f.home.native(kSettings);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    int count = 0;
    ListFill fill;
    {
        const PermissionBitsHold hold;
        QString text;
        count = prepareWorkingCopy(f.basics, QStringLiteral("C:\\new.lst"), &text);
        fill = fillListArray(f.basics, text, count);
    }
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(count, 2);
    QCOMPARE(fill.fileCount, 2);
    QCOMPARE(row(f.state, 1), cells("C:\\new1.jpg||3||"));
    QCOMPARE(row(f.state, 2), cells("C:\\new2.jpg||9999||"));
    QCOMPARE(f.home.readFile(QString(kSettings) + "TempList.Lst"), stale);
    QCOMPARE(f.home.readFile("new.lst"), chosen);
    QCOMPARE(f.ui.boxes, QStringList());
}

void TestListFiles::listViewCutsLongLines()
{
    const QString longLine = "C:\\a.jpg @COMMENT=<<<<<" + QString(2000000, 'x') + " ENDCOMMENT";
    const QString view = listViewText("C:\\b.jpg\r\n" + longLine + "\r\nC:\\c.jpg\r\n\r");
    const QStringList lines = view.split('\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines[0], QStringLiteral("C:\\b.jpg"));
    QCOMPARE(lines[1], longLine.left(kLongestViewLine) + u'…');
    QCOMPARE(lines[2], QStringLiteral("C:\\c.jpg"));
}

QTEST_GUILESS_MAIN(TestListFiles)
#include "tst_ListFiles.moc"
