// The pure text and path procedures, each with its odd cases.
#include "fileops/BasicText.h"

#include "support/Fetch.h"
#include <QDateTime>

#include <QTest>

using namespace lumen;

class TestBasicText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void trimLineEnds_data();
    void trimLineEnds();
    void trimLineEndsChangesTheVariable();
    void pathParts_data();
    void pathParts();
    void dots_data();
    void dots();
    void backslashes_data();
    void backslashes();
    void serchAndReplace_data();
    void serchAndReplace();
    void pair_data();
    void pair();
};

void TestBasicText::trimLineEnds_data()
{
    QTest::addColumn<QString>("in");
    QTest::addColumn<QString>("out");
    const auto row = [](const char* tag, const QString& in, const QString& out) {
        QTest::newRow(tag) << in << out;
    };
    row("blanks behind crlf", "a.jpg \r\n  ", "a.jpg");
    row("nul padding", QString("abc") + QString(5, QChar(0)), "abc");
    row("crlf at start kept blanks", "\r\n  a", "  a");
    row("ideographic blank kept", QString::fromUtf8("\u3000a\u3000"),
        QString::fromUtf8("\u3000a\u3000"));
}

void TestBasicText::trimLineEnds()
{
    QFETCH(QString, in);
    QFETCH(QString, out);
    QCOMPARE(TrimLineEnds(std::as_const(in)), out);
}

void TestBasicText::trimLineEndsChangesTheVariable()
{
    QString path = QStringLiteral("  C:\\a.jpg\r\n");
    TrimLineEnds(path);
    QCOMPARE(path, QStringLiteral("C:\\a.jpg"));
}

void TestBasicText::pathParts_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("afterBackslash");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("lastFolder");
    const auto row = [](const char* tag, const QString& path, const QString& fileName,
                        const QString& afterBackslash, const QString& folder,
                        const QString& lastFolder) {
        QTest::newRow(tag) << path << fileName << afterBackslash << folder << lastFolder;
    };
    row("bare name", "a.jpg", "a.jpg", "", "", "a.jpg");
    row("address", "http://x.jp/d\\e/p.html", "p.html", "e/p.html", "http://x.jp/d\\",
        "http://x.jp/d");
    row("trailing backslash", "C:\\pics\\", "", "", "C:\\pics\\", "");
    row("dotted folder", "C:\\a.b\\c", "c", "c", "C:\\a.b\\", "c");
}

void TestBasicText::pathParts()
{
    QFETCH(QString, path);
    QCOMPARE(FileNameOfPath(path), FETCH(QString, fileName));
    QCOMPARE(NameAfterLastBackslash(path), FETCH(QString, afterBackslash));
    QCOMPARE(FolderOfPath(path), FETCH(QString, folder));
    QCOMPARE(LastFolderName(path), FETCH(QString, lastFolder));
}

void TestBasicText::dots_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const auto row = [](const char* tag, const QString& name, const QString& before,
                        const QString& after) { QTest::newRow(tag) << name << before << after; };
    row("two dots split at first", "a.b.c", "a", "b.c");
    row("dotted folder in path", "c:\\a.b\\c", "c:\\a", "b\\c");
    row("leading dot", ".x", "", "x");
}

void TestBasicText::dots()
{
    QFETCH(QString, name);
    QCOMPARE(NameBeforeFirstDot(name), FETCH(QString, before));
    QCOMPARE(TextAfterFirstDot(name), FETCH(QString, after));
}

void TestBasicText::backslashes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("stripped");
    QTest::addColumn<QString>("collapsed");
    const auto row = [](const char* tag, const QString& path, const QString& stripped,
                        const QString& collapsed) {
        QTest::newRow(tag) << path << stripped << collapsed;
    };
    row("trailing", "C:\\a\\\\ ", "C:\\a", "C:\\a\\");
    row("two doubles, first collapsed", "C:\\\\a\\\\b", "C:\\\\a\\\\b", "C:\\a\\\\b");
    row("root", "C:\\", "C:", "C:\\");
}

void TestBasicText::backslashes()
{
    QFETCH(QString, path);
    QCOMPARE(StripTrailingBackslash(path), FETCH(QString, stripped));
    QCOMPARE(CollapseDoubleBackslash(path), FETCH(QString, collapsed));
}

void TestBasicText::serchAndReplace_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("find");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<QString>("result");
    const auto row = [](const char* tag, const QString& source, const QString& find,
                        const QString& replacement, const QString& result) {
        QTest::newRow(tag) << source << find << replacement << result;
    };
    row("case-sensitive", "c:\\a", "C:", "*:", "c:\\a");
    row("find in replacement ends", "aaa", "a", "aa", "aaaaaa");
    row("no overlap", "aaaa", "aa", "b", "bb");
    row("to empty", "a-b-c", "-", "", "abc");
}

void TestBasicText::serchAndReplace()
{
    QFETCH(QString, source);
    QFETCH(QString, find);
    QFETCH(QString, replacement);
    QCOMPARE(SerchAndReplace(source, find, replacement), FETCH(QString, result));
}

void TestBasicText::pair_data()
{
    QTest::addColumn<QString>("pair");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    const auto row = [](const char* tag, const QString& pair, const QString& from,
                        const QString& to) { QTest::newRow(tag) << pair << from << to; };
    row("comma in target", "C:\\a.jpg,C:\\b,c.jpg", "C:\\a.jpg", "C:\\b,c.jpg");
    row("blank after comma", "a, b", "a", " b");
}

void TestBasicText::pair()
{
    QFETCH(QString, pair);
    const FilePair split = SplitFilePair(pair);
    QCOMPARE(split.from, FETCH(QString, from));
    QCOMPARE(split.to, FETCH(QString, to));
}

QTEST_GUILESS_MAIN(TestBasicText)
#include "tst_BasicText.moc"
