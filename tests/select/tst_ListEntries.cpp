// What one dropped or command-line item adds to a new list.
#include "select/ListEntries.h"

#include "support/Fetch.h"
#include "support/TestHome.h"

#include <QTest>

#include <memory>

using namespace lumen;
using namespace lumen::test;

class TestListEntries : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestHome> home_;

private Q_SLOTS:
    void init();
    void cleanup() { home_.reset(); }

    void lines_data();
    void lines();
};

void TestListEntries::init()
{
    home_ = std::make_unique<TestHome>();
    const TestHome& h = *home_;
    h.writeFile("my pics/a b.jpg", "x");
    h.writeFile("my pics/sub/c.jpg", "x");
    h.writeFile("folder.lst/in.jpg", "x");
    h.writeFile("pics.v2/p.jpg", "x");
    h.writeFile("shows/list.LST", "C:\\p\\1.jpg\r\nno colon.jpg\r\nC:\\nodot\r\n"
                                  "  C:\\p\\2.jpg @DELAY=3\r\n\r\n@WITH=C:\\s.wav\n");
    h.writeFile("shows/words.lst", "just words.\r\nC:\\x.jpg\r\n");
    h.writeFile("shows/nodot.lst", "C:\\nodot\r\nC:\\x.jpg\r\n");
    h.writeFile("shows/empty.lst", "");
    // "C:\写真\a.jpg" and "C:\写真\b.jpg" in Shift-JIS.
    h.writeFile("shows/sjis.lst", "C:\\\x8e\xca\x90\x5e\\a.jpg\r\nC:\\\x8e\xca\x90\x5e\\b.jpg");
}

void TestListEntries::lines_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("dropped");
    QTest::addColumn<QStringList>("lines");

    const QStringList tree{"C:\\my pics\\a b.jpg", "C:\\my pics\\sub\\c.jpg"};
    const QStringList listLines{"C:\\p\\1.jpg", "  C:\\p\\2.jpg @DELAY=3", "@WITH=C:\\s.wav"};

    QTest::newRow("folder with a blank: its tree") << "C:\\my pics" << false << tree;
    QTest::newRow("list: lines with ':' and '.' copied")
        << "C:\\shows\\list.LST" << false << listLines;
    QTest::newRow("list in Shift-JIS")
        << "C:\\shows\\sjis.lst" << false
        << QStringList{QStringLiteral("C:\\写真\\a.jpg"), QStringLiteral("C:\\写真\\b.jpg")};
    QTest::newRow("list whose first line has no ':': the file itself")
        << "C:\\shows\\words.lst" << false << QStringList{"C:\\shows\\words.lst"};
    QTest::newRow("empty list: the file itself")
        << "C:\\shows\\empty.lst" << false << QStringList{"C:\\shows\\empty.lst"};
    QTest::newRow("missing file: the name itself")
        << "C:\\none.jpg" << false << QStringList{"C:\\none.jpg"};
    QTest::newRow("folder with a dot: its tree")
        << "C:\\pics.v2" << false << QStringList{"C:\\pics.v2\\p.jpg"};

    QTest::newRow("dropped folder without a dot: its tree") << "C:\\my pics" << true << tree;
    QTest::newRow("dropped folder with a dot: the name")
        << "C:\\pics.v2" << true << QStringList{"C:\\pics.v2"};
    QTest::newRow("dropped folder named like a list: the name")
        << "C:\\folder.lst" << true << QStringList{"C:\\folder.lst"};
    QTest::newRow("dropped name without ':': nothing") << "a b.jpg" << true << QStringList{};
}

void TestListEntries::lines()
{
    const EntryRule rule = FETCH(bool, dropped) ? EntryRule::Dropped : EntryRule::CommandLine;
    QCOMPARE(listEntryLines(home_->fs, FETCH(QString, name), rule), FETCH(QStringList, lines));
}

QTEST_GUILESS_MAIN(TestListEntries)
#include "tst_ListEntries.moc"
