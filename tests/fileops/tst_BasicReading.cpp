// ReadTextOfFile and CleanListFile: their texts, limits, progress and stop.
#include "support/BasicsFixture.h"

#include "support/Fetch.h"

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
    void readText_data();
    void readText();
    void readMissingFile();
    void readTooManyLines_data();
    void readTooManyLines();
    void progressWindow();
    void stopWhileReading();
    void clean_data();
    void clean();
    void cleanMissingFile();
};

void TestBasicReading::readText_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* tag, const QByteArray& bytes, const QString& text) {
        QTest::newRow(tag) << bytes << text;
    };
    row("last CR LF cut", QByteArray("a\r\nb\r\n"), "a\r\nb");
    row("LF lines", QByteArray("a\nb\n"), "a\r\nb");
    row("CR lines", QByteArray("a\rb"), "a\r\nb");
    row("invalid bytes", QByteArray("a\xFF\r\n\x81"), "a\uFFFD\r\n\uFFFD");
}

void TestBasicReading::readText()
{
    BasicsFixture f;
    f.home.writeFile("list.lst", FETCH(QByteArray, bytes));
    f.state.StopRequested = true; // cleared by the reader
    QCOMPARE(f.basics.ReadTextOfFile(kList), FETCH(QString, text));
    QVERIFY(!f.state.StopRequested);
    QVERIFY(f.ui.boxes.isEmpty());
    QVERIFY(f.host.stopEvents.isEmpty());
}

void TestBasicReading::readMissingFile()
{
    BasicsFixture f;
    QCOMPARE(f.basics.ReadTextOfFile(QStringLiteral("C:\\none.lst")), QString());
    QCOMPARE(f.ui.beeps, 1);
    QCOMPARE(f.ui.boxes, QStringList{"ファイルが見つかりません。"});
    QCOMPARE(f.host.stopEvents, QStringList{"unload"});
}

void TestBasicReading::readTooManyLines_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<bool>("read");
    QTest::newRow("35,000 fit the chunks") << 35000 << true;
    QTest::newRow("35,001 overrun them") << 35001 << false;
}

void TestBasicReading::readTooManyLines()
{
    BasicsFixture f;
    QFETCH(int, lines);
    f.home.writeFile("list.lst", numberedLines(lines));
    const QString text = f.basics.ReadTextOfFile(kList);
    if (FETCH(bool, read)) {
        QVERIFY(text.endsWith(QStringLiteral("line35000")));
        QVERIFY(f.ui.boxes.isEmpty());
    } else {
        QCOMPARE(text, QString());
        QCOMPARE(f.ui.boxes, QStringList{"インデックスが有効範囲にありません。"});
        QCOMPARE(f.ui.beeps, 1);
        QCOMPARE(f.host.stopEvents.last(), QStringLiteral("unload"));
    }
}

void TestBasicReading::progressWindow()
{
    BasicsFixture f;
    f.home.writeFile("list.lst", numberedLines(1100));
    f.basics.ReadTextOfFile(kList);
    // Shown at the 1000th line and left standing; the line every 50 lines,
    // then the joined count.
    QCOMPARE(f.host.stopEvents, QStringList{"show"});
    QCOMPARE(f.host.stopTexts.mid(0, 3), (QStringList{"line1000", "line1050", "line1100"}));
    QCOMPARE(f.host.stopTexts.last(), QStringLiteral("1150"));

    BasicsFixture small;
    small.home.writeFile("list.lst", numberedLines(999));
    small.basics.ReadTextOfFile(kList);
    QVERIFY(small.host.stopEvents.isEmpty());
}

void TestBasicReading::stopWhileReading()
{
    BasicsFixture f;
    f.home.writeFile("list.lst", numberedLines(2000));
    f.clock.onDoEvents = [&f] {
        if (f.clock.doEventsCount == 30)  // at line 1500
            f.state.StopRequested = true; // LabelStop pressed
    };
    QCOMPARE(f.basics.ReadTextOfFile(kList), QString());
    QCOMPARE(f.host.stopEvents, (QStringList{"show", "unload"}));
    QVERIFY(f.ui.boxes.isEmpty());
}

void TestBasicReading::clean_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("count");
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char* tag, const QByteArray& bytes, int count,
                        const QByteArray& after) { QTest::newRow(tag) << bytes << count << after; };
    row("blank lines dropped, ends trimmed",
        QByteArray("a.jpg\r\n\r\n   \r\n b.jpg @WITH=c.wav ENDWITH \r\n\r\n"), 2,
        QByteArray("a.jpg\r\nb.jpg @WITH=c.wav ENDWITH\r\n"));
    row("25 blanks before a name", QByteArray(25, ' ') + "a.jpg", 1, QByteArray("a.jpg\r\n"));
    row("trailing ideographic blank stays", QByteArray("a.jpg\xE3\x80\x80\n"), 1,
        QByteArray("a.jpg\x81\x40\r\n"));
    row("list folder mark", QByteArray("%:\\pics\\a.jpg"), 1, QByteArray("C:\\shows\\a.jpg\r\n"));
    row("blank lines only untouched", QByteArray("\r\n  \r\n"), 0, QByteArray("\r\n  \r\n"));
}

void TestBasicReading::clean()
{
    BasicsFixture f;
    f.state.StartFileName = QStringLiteral("C:\\shows\\show.lst");
    f.home.writeFile("list.lst", FETCH(QByteArray, bytes));
    QCOMPARE(f.basics.CleanListFile(kList), FETCH(int, count));
    QCOMPARE(f.home.readFile("list.lst"), FETCH(QByteArray, after));
}

void TestBasicReading::cleanMissingFile()
{
    BasicsFixture f;
    QCOMPARE(f.basics.CleanListFile(QStringLiteral("C:\\none.lst")), 0);
    QVERIFY(f.ui.boxes.isEmpty());
    QVERIFY(!f.home.exists("none.lst"));
}

QTEST_GUILESS_MAIN(TestBasicReading)
#include "tst_BasicReading.moc"
