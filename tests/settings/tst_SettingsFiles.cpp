// The settings files and what is read from them: the AUTO_START table of
// SendToList.txt and the look-up of a page's main file in it; the one line of
// the font and colour set files, and a reset of the picture's ground that
// leaves the other fields of the record alone; the helper programs looked for
// on PATH at the first start, and what stands when none is there.
#include "platform/TextCodec.h"
#include "settings/AutoStartTable.h"
#include "settings/FontColorSets.h"
#include "settings/ProgramCandidates.h"
#include "settings/SendToList.h"
#include "support/BasicsFixture.h"
#include "support/FakeSystemBin.h"
#include "support/Fetch.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

Q_DECLARE_METATYPE(lumen::ProgramRole)

namespace {

const QString kSendToList = QStringLiteral("Lumentas/ForProgramRun_KDR/SendToList.txt");

// As a Windows editor leaves it: Shift-JIS.
void readTable(BasicsFixture& f, AutoStartTable& table, const QString& text)
{
    f.home.writeFile(kSendToList, text::encodeCp932(text).value());
    CheckAuto_With(f.basics, table);
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

QStringList numbered(const QString& pattern, int count)
{
    QStringList parts;
    for (int i = 1; i <= count; ++i)
        parts << pattern.arg(i);
    return parts;
}

} // namespace

class TestSettingsFiles : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsForcingLines_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<QStringList>("messages");

        QTest::newRow("comments, empty and send-to lines passed over")
            << "'X,AUTO_START,.JPG\r\n\r\n      \r\n   'C:\\a, AUTO_START,.BMP\r\nC:\\Tools\\paint"
               "\r\nSHOW_TEXT,AUTO_START,.LOG\r\n"
            << QStringList{"SHOW_TEXT|.LOG"} << QStringList{};
        QTest::newRow("small letters; words trimmed, in capitals")
            << "show_picture, auto_start, .gif , Read Me \r\n"
            << QStringList{"show_picture|.GIF|READ ME"} << QStringList{};
        QTest::newRow("words only behind AUTO_START")
            << "SHOW_TEXT,.TXT,AUTO_START,.LOG" << QStringList{"SHOW_TEXT|.LOG"} << QStringList{};
        QTest::newRow("empty words keep their places")
            << "X,AUTO_START,.A,,.B" << QStringList{"X|.A||.B"} << QStringList{};
        QTest::newRow("tabs and ideographic blanks kept")
            << "X,AUTO_START,\t.A,.B\u3000" << QStringList{"X|\t.A|.B\u3000"} << QStringList{};
        QTest::newRow("missing file") << QString() << QStringList{} << QStringList{};
        QTest::newRow("Shift-JIS") << "C:\\ツール\\表示,AUTO_START,写真\r\n"
                                   << QStringList{"C:\\ツール\\表示|写真"} << QStringList{};
        QTest::newRow("51st forcing line ends the reading")
            << numbered("APP%1,AUTO_START,.E%1", 53).join("\r\n") << numbered("APP%1|.E%1", 50)
            << QStringList{QStringLiteral("強制実行するｱﾌﾟﾘｹｰｼｮﾝは最高で５０個までです")};
        QTest::newRow("51st word ends its line only")
            << "X,AUTO_START," + numbered("w%1", 53).join(',') + "\r\nY,AUTO_START,.Y"
            << QStringList{"X|" + numbered("W%1", 50).join('|'), "Y|.Y"}
            << QStringList{QStringLiteral("強制実行のトリガー単語は５０個までです")};
    }
    void readsForcingLines()
    {
        BasicsFixture f;
        AutoStartTable table;
        // Read over a fuller table: nothing of it may be left.
        readTable(f, table, "A,AUTO_START,.A1,.A2,.A3\r\nB,AUTO_START,.B\r\nC,AUTO_START,.C");
        QCOMPARE(rowsOf(table), (QStringList{"A|.A1|.A2|.A3", "B|.B", "C|.C"}));
        QFETCH(QString, text);
        if (text.isNull()) {
            QVERIFY(QFile::remove(f.home.native(kSendToList)));
            CheckAuto_With(f.basics, table);
        } else {
            readTable(f, table, text);
        }
        QTEST(rowsOf(table), "rows");
        QTEST(f.ui.boxes, "messages");
        // A missing file is written with one empty line; a file read stays as it was.
        QCOMPARE(f.home.readFile(kSendToList),
                 text.isNull() ? QByteArray("\r\n") : text::encodeCp932(text).value());
        QCOMPARE(f.clock.waits.contains(100), text.isNull());
        QCOMPARE(table.name(table.AutoStartCount + 1), QString());
    }

    void routesAFileName_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("application");

        const auto row = [](const char* name, const QString& text, const char* file,
                            const char* application) {
            QTest::newRow(name) << text << QString(file) << QString(application);
        };
        row("default file: a batch file", defaultSendToListLines().join("\r\n"),
            "C:\\tools\\go.bat", "SHOW_NON");
        row("words of two lines: the earlier line wins",
            "SHOW_TEXT,AUTO_START,.TXT\r\nSHOW_PICTURE,AUTO_START,DIARY", "C:\\diary\\note.txt",
            "SHOW_TEXT");
        row("a later word of an earlier line wins",
            "SHOW_TEXT,AUTO_START,.LOG,.TXT\r\nSHOW_INTEX,AUTO_START,NOTE", "C:\\note.txt",
            "SHOW_TEXT");
        row("a word matching a folder", "SHOW_NON,AUTO_START,PRIVATE", "C:\\Private\\a.jpg",
            "SHOW_NON");
        row(".JPG is not in jpgs", "SHOW_NON,AUTO_START,.JPG", "C:\\jpgs\\a.png", "");
        row("a word behind an empty one", "X,AUTO_START,,.ZIP", "C:\\a.zip", "X");
        row("an empty name ends the table", ",AUTO_START,.BMP\r\nSHOW_PICTURE,AUTO_START,.TXT",
            "C:\\a.txt", "");
    }
    void routesAFileName()
    {
        BasicsFixture f;
        AutoStartTable table;
        readTable(f, table, FETCH(QString, text));
        QString forcedShowKind = QStringLiteral("SHOW_MIDI"); // from the page before
        QTEST(CheckAutoWith(FETCH(QString, fileName), table, forcedShowKind), "application");
        QTEST(forcedShowKind, "application");
    }

    void readingALine_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("fields");
        QTest::newRow("blanks around, a field missing")
            << "  IPAGothic , 20,&HFF" << QStringList{"IPAGothic", "20", "&HFF", ""};
        QTest::newRow("quoted comma")
            << "\"Sans, Bold\",9,1,2" << QStringList{"Sans, Bold", "9", "1", "2"};
        QTest::newRow("fifth field") << "a,b,c,d,e" << QStringList{"a", "b", "c", "d"};
    }
    void readingALine()
    {
        const FontColorSet set = parseSetLine(FETCH(QString, line));
        QTEST((QStringList{set.fontName, set.fontSize, set.firstColor, set.secondColor}), "fields");
    }

    void storedAndLoaded()
    {
        BasicsFixture f;
        DirecDataRecord& record = f.state.DirecData;
        record.PictBackColor = QStringLiteral("&H336699");
        QVERIFY(writeSetFile(f.basics, QStringLiteral("PictBackCol2"),
                             setFromRecord(record, SetGroup::PictBackCol)));
        QCOMPARE(f.home.readFile("Lumentas/ForProgramRun_KDR/PictBackCol2.dat"),
                 QByteArray("Non,Non,&H336699,Non \r\n"));
        // The loaders ask in capitals; the name on disk is found whatever its case.
        const auto read = readSetFile(f.basics, QStringLiteral(" pictbackcol2.dat"));
        QVERIFY(read);
        QCOMPARE(read->firstColor, QStringLiteral("&H336699"));
        QVERIFY(!readSetFile(f.basics, QStringLiteral("PICTBACKCOL9.DAT")));
        QVERIFY(!writeSetFile(f.basics, QStringLiteral("..\\escape"), *read));
        QVERIFY(!writeSetFile(f.basics, QStringLiteral("  "), *read));
    }

    void pictureGroundResetTouchesOnlyItsField()
    {
        DirecDataRecord record;
        for (SetGroup group : {SetGroup::Comment, SetGroup::Text, SetGroup::EditText})
            storeSetInRecord(record, group, {"Font", "12", "1", "2"});
        record.PictBackColor = QStringLiteral("255");
        const QByteArray before = record.toBytes();
        storeSetInRecord(record, SetGroup::PictBackCol, defaultSet(SetGroup::PictBackCol));
        const QByteArray after = record.toBytes();
        QCOMPARE(after.left(1080), before.left(1080));
        QCOMPARE(after.mid(1095), before.mid(1095));
        QCOMPARE(after.mid(1080, 15), QByteArray("&HC0C0C0       "));
    }

    void findsTheFirstOnPath_data()
    {
        QTest::addColumn<ProgramRole>("role");
        QTest::addColumn<QStringList>("installed"); // "-name": without the execute bit
        QTest::addColumn<QString>("expected");

        const auto paint = ProgramRole::PictureEditor;
        const auto row = [](const char* tag, ProgramRole role, const QStringList& installed,
                            const char* expected) {
            QTest::newRow(tag) << role << installed << QStringLiteral("Z:\\usr\\bin\\") + expected;
        };
        row("gimp before the opener", paint, {"xdg-open", "gimp"}, "gimp");
        row("gimp before kolourpaint", paint, {"kolourpaint", "gimp"}, "gimp");
        row("gimp without execute bit", paint, {"xdg-open", "-gimp"}, "xdg-open");
        row("nothing: the opener's place", paint, {}, "xdg-open");
        row("other roles' programs", paint, {"gedit", "vlc", "audacity"}, "xdg-open");
        row("browser: user's choice first", ProgramRole::WebBrowser,
            {"firefox-esr", "x-www-browser"}, "x-www-browser");
    }
    void findsTheFirstOnPath()
    {
        QFETCH(ProgramRole, role);
        TestHome home;
        FakeSystemBin bin(home.fs);
        for (const QString& name : FETCH(QStringList, installed))
            bin.add(name.startsWith('-') ? name.mid(1) : name, !name.startsWith('-'));
        QTEST(findProgram(role, QStringLiteral("Z:\\usr\\bin"), home.fs), "expected");
    }

    void programFiles()
    {
        TestHome home;
        FakeSystemBin bin(home.fs);
        const QDir folder(bin.folder());
        bin.add(QStringLiteral("gimp"));
        bin.add(QStringLiteral("notes.txt"), false);
        QVERIFY(folder.mkdir(QStringLiteral("share")));
        QVERIFY(isProgramFile(folder.filePath("gimp")));
        QVERIFY(!isProgramFile(folder.filePath("notes.txt")));
        QVERIFY(!isProgramFile(folder.filePath("share")));
    }
};

QTEST_MAIN(TestSettingsFiles)
#include "tst_SettingsFiles.moc"
