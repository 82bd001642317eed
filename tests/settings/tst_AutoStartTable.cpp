// The AUTO_START table read from SendToList.txt, and the look-up of a page's
// main file in it.
#include "platform/TextCodec.h"
#include "settings/AutoStartTable.h"
#include "settings/SendToList.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

const QString kSendToList = QStringLiteral("Lumentas/ForProgramRun_KDR/SendToList.txt");
const QString kTooManyApplications = QStringLiteral("強制実行するｱﾌﾟﾘｹｰｼｮﾝは最高で５０個までです");
const QString kTooManyWords = QStringLiteral("強制実行のトリガー単語は５０個までです");

// As a Windows editor leaves it: Shift-JIS.
void writeSendToList(BasicsFixture& f, const QString& text)
{
    f.home.writeFile(kSendToList, text::encodeCp932(text).value());
}

// Each row held: "name|WORD1|WORD2", trailing empty words left off.
QStringList rowsOf(const AutoStartTable& table)
{
    QStringList rows;
    for (int row = 1; row <= table.AutoStartCount; ++row) {
        QStringList cells{table.name(row)};
        for (int index = 1; index <= AutoStartTable::kLimit; ++index)
            cells << table.word(row, index);
        while (cells.size() > 1 && cells.last().isEmpty())
            cells.removeLast();
        rows << cells.join(QLatin1Char('|'));
    }
    return rows;
}

QString numberedLines(const QString& pattern, int count)
{
    QStringList lines;
    for (int i = 1; i <= count; ++i)
        lines << pattern.arg(i);
    return lines.join(QStringLiteral("\r\n"));
}

QString numberedWords(int count)
{
    QStringList words;
    for (int i = 1; i <= count; ++i)
        words << QStringLiteral("w%1").arg(i);
    return words.join(QLatin1Char(','));
}

QStringList wordRow(const QString& name, int count)
{
    QStringList cells{name};
    for (int i = 1; i <= count; ++i)
        cells << QStringLiteral("W%1").arg(i);
    return {cells.join(QLatin1Char('|'))};
}

} // namespace

class TestAutoStartTable : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsForcingLines_data();
    void readsForcingLines();
    void missingFileIsWrittenWithOneEmptyLine();
    void readingAgainStartsFromAnEmptyTable();
    void routesAFileName_data();
    void routesAFileName();
};

void TestAutoStartTable::readsForcingLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QStringList>("messages");

    QTest::newRow("comments, empty lines and send-to lines are passed over")
        << "'X,AUTO_START,.JPG\r\n\r\n      \r\n   'C:\\a, AUTO_START,.BMP\r\nC:\\Tools\\paint\r\n"
           "SHOW_TEXT,AUTO_START,.LOG\r\n"
        << QStringList{"SHOW_TEXT|.LOG"} << QStringList{};
    QTest::newRow("auto_start in small letters; words trimmed and in capitals")
        << "show_picture, auto_start, .gif , Read Me \r\n"
        << QStringList{"show_picture|.GIF|READ ME"} << QStringList{};
    QTest::newRow("words only behind AUTO_START")
        << "SHOW_TEXT,.TXT,AUTO_START,.LOG" << QStringList{"SHOW_TEXT|.LOG"} << QStringList{};
    QTest::newRow("empty words keep their places")
        << "X,AUTO_START,.A,,.B" << QStringList{"X|.A||.B"} << QStringList{};
    QTest::newRow("tabs and ideographic blanks aren't trimmed")
        << "X,AUTO_START,\t.A,.B\u3000" << QStringList{"X|\t.A|.B\u3000"} << QStringList{};
    QTest::newRow("Shift-JIS names and words")
        << "C:\\ツール\\表示,AUTO_START,写真\r\n"
        << QStringList{"C:\\ツール\\表示|写真"} << QStringList{};

    QStringList fifty;
    for (int i = 1; i <= 50; ++i)
        fifty << QStringLiteral("APP%1|.E%1").arg(i);
    QTest::newRow("the 51st forcing line ends the reading")
        << numberedLines("APP%1,AUTO_START,.E%1", 53) << fifty << QStringList{kTooManyApplications};
    QTest::newRow("the 51st word ends its line, the next line is read")
        << "X,AUTO_START," + numberedWords(53) + "\r\nY,AUTO_START,.Y"
        << wordRow("X", 50) + QStringList{"Y|.Y"} << QStringList{kTooManyWords};
}

void TestAutoStartTable::readsForcingLines()
{
    BasicsFixture f;
    writeSendToList(f, FETCH(QString, text));
    AutoStartTable table;
    CheckAuto_With(f.basics, table);
    QTEST(rowsOf(table), "rows");
    QTEST(f.ui.boxes, "messages");
    // Row 0 stays empty: rows count from 1.
    for (int index = 0; index <= AutoStartTable::kLimit; ++index)
        QCOMPARE(table.cells.at(index, 0), QString());
}

void TestAutoStartTable::missingFileIsWrittenWithOneEmptyLine()
{
    BasicsFixture f;
    AutoStartTable table;
    CheckAuto_With(f.basics, table);
    QCOMPARE(f.home.readFile(kSendToList), QByteArray("\r\n"));
    QVERIFY(f.clock.waits.contains(100));
    QCOMPARE(table.AutoStartCount, 0);
    QVERIFY(f.ui.boxes.isEmpty());
}

void TestAutoStartTable::readingAgainStartsFromAnEmptyTable()
{
    BasicsFixture f;
    AutoStartTable table;
    writeSendToList(f, "A,AUTO_START,.A1,.A2\r\nB,AUTO_START,.B\r\nC,AUTO_START,.C");
    CheckAuto_With(f.basics, table);
    QCOMPARE(rowsOf(table), (QStringList{"A|.A1|.A2", "B|.B", "C|.C"}));

    writeSendToList(f, "D,AUTO_START,.D");
    CheckAuto_With(f.basics, table);
    QCOMPARE(rowsOf(table), QStringList{"D|.D"});
    QCOMPARE(table.word(1, 2) + table.name(2) + table.word(3, 1), QString());
}

void TestAutoStartTable::routesAFileName_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("application");

    const auto row = [](const char* name, const QString& text, const char* file,
                        const char* application) {
        QTest::newRow(name) << text << QString(file) << QString(application);
    };
    const QString defaults = defaultSendToListLines().join("\r\n");
    row("default file: a batch file", defaults, "C:\\tools\\go.bat", "SHOW_NON");
    row("two words of different lines: the earlier line wins",
        "SHOW_TEXT,AUTO_START,.TXT\r\nSHOW_PICTURE,AUTO_START,DIARY", "C:\\diary\\note.txt",
        "SHOW_TEXT");
    row("a later word of an earlier line beats a later line",
        "SHOW_TEXT,AUTO_START,.LOG,.TXT\r\nSHOW_INTEX,AUTO_START,NOTE", "C:\\note.txt",
        "SHOW_TEXT");
    row("a word matching a folder name", "SHOW_NON,AUTO_START,PRIVATE", "C:\\Private\\a.jpg",
        "SHOW_NON");
    row(".JPG is not in a folder named jpgs", "SHOW_NON,AUTO_START,.JPG", "C:\\jpgs\\a.png", "");
    row("a word behind an empty one", "X,AUTO_START,,.ZIP", "C:\\a.zip", "X");
    row("an empty name ends the table", ",AUTO_START,.BMP\r\nSHOW_PICTURE,AUTO_START,.TXT",
        "C:\\a.txt", "");
}

void TestAutoStartTable::routesAFileName()
{
    BasicsFixture f;
    writeSendToList(f, FETCH(QString, text));
    AutoStartTable table;
    CheckAuto_With(f.basics, table);
    QString forcedShowKind = QStringLiteral("SHOW_MIDI"); // from the page before
    const QString application = CheckAutoWith(FETCH(QString, fileName), table, forcedShowKind);
    QTEST(application, "application");
    QTEST(forcedShowKind, "application");
}

QTEST_MAIN(TestAutoStartTable)
#include "tst_AutoStartTable.moc"
