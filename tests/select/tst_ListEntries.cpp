// What one dropped or command-line item adds to a new list.
#include "select/ListEntries.h"

#include "support/TestHome.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestListEntries : public QObject {
    Q_OBJECT

    TestHome home_;

private Q_SLOTS:
    void initTestCase()
    {
        home_.writeFile("my pics/a b.jpg", "x");
        home_.writeFile("my pics/sub/c.jpg", "x");
        home_.writeFile("folder.lst/in.jpg", "x");
        home_.writeFile("pics.v2/p.jpg", "x");
        home_.writeFile("shows/list.LST", "C:\\p\\1.jpg\r\nno colon.jpg\r\nC:\\nodot\r\n"
                                          "  C:\\p\\2.jpg @DELAY=3\r\n\r\n@WITH=C:\\s.wav\n");
        home_.writeFile("shows/words.lst", "just words.\r\nC:\\x.jpg\r\n");
        home_.writeFile("shows/empty.lst", "");
        // "C:\写真\a.jpg" and "C:\写真\b.jpg" in Shift-JIS.
        home_.writeFile("shows/sjis.lst",
                        "C:\\\x8e\xca\x90\x5e\\a.jpg\r\nC:\\\x8e\xca\x90\x5e\\b.jpg");
    }

    void lines_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("dropped");
        QTest::addColumn<QStringList>("lines");

        const auto row = [](const char* tag, const QString& name, bool dropped,
                            const QStringList& lines) {
            QTest::newRow(tag) << name << dropped << lines;
        };
        const QStringList tree{"C:\\my pics\\a b.jpg", "C:\\my pics\\sub\\c.jpg"};
        row("folder with a blank", "C:\\my pics", false, tree);
        row("list: lines with ':' and '.'", "C:\\shows\\list.LST", false,
            {"C:\\p\\1.jpg", "  C:\\p\\2.jpg @DELAY=3", "@WITH=C:\\s.wav"});
        row("list in Shift-JIS", "C:\\shows\\sjis.lst", false,
            {QStringLiteral("C:\\写真\\a.jpg"), QStringLiteral("C:\\写真\\b.jpg")});
        row("list, first line without ':'", "C:\\shows\\words.lst", false,
            {"C:\\shows\\words.lst"});
        row("empty list", "C:\\shows\\empty.lst", false, {"C:\\shows\\empty.lst"});
        row("missing file", "C:\\none.jpg", false, {"C:\\none.jpg"});
        row("folder with a dot", "C:\\pics.v2", false, {"C:\\pics.v2\\p.jpg"});

        row("dropped folder", "C:\\my pics", true, tree);
        row("dropped folder with a dot", "C:\\pics.v2", true, {"C:\\pics.v2"});
        row("dropped folder named like a list", "C:\\folder.lst", true, {"C:\\folder.lst"});
        row("dropped name without ':'", "a b.jpg", true, {});
        // Names that a list line would split are left out.
        row("dropped name with companion words", "C:\\x.png @WITH=y.wav ENDWITH", true, {});
        row("named file with a line break", "C:\\a\nb.jpg", false, {});
        row("'@' alone stays", "C:\\photo@2x.png", true, {"C:\\photo@2x.png"});
    }
    void lines()
    {
        QFETCH(QString, name);
        QFETCH(bool, dropped);
        QTEST(listEntryLines(home_.fs, name, dropped ? EntryRule::Dropped : EntryRule::CommandLine),
              "lines");
    }
};

QTEST_GUILESS_MAIN(TestListEntries)
#include "tst_ListEntries.moc"
