// The pure text and path procedures, each with its odd cases.
#include "fileops/BasicText.h"

#include "support/Fetch.h"

#include <QTest>

using namespace lumen;

using TextFunction = QString (*)(const QString&);
Q_DECLARE_METATYPE(TextFunction)

class TestBasicText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void oneText_data();
    void oneText();
    void serchAndReplace_data();
    void serchAndReplace();
    void pair_data();
    void pair();
};

void TestBasicText::oneText_data()
{
    QTest::addColumn<TextFunction>("function");
    QTest::addColumn<QString>("in");
    QTest::addColumn<QString>("out");
    const auto row = [](const char* tag, TextFunction function, const QString& in,
                        const QString& out) { QTest::newRow(tag) << function << in << out; };
    const TextFunction trim = [](const QString& t) { return TrimLineEnds(t); };
    const TextFunction trimInPlace = [](const QString& t) {
        QString variable = t;
        TrimLineEnds(variable);
        return variable;
    };
    row("trim: blanks behind crlf", trim, "a.jpg \r\n  ", "a.jpg");
    row("trim: nul padding", trim, QString("abc") + QString(5, QChar(0)), "abc");
    row("trim: crlf at start kept blanks", trim, "\r\n  a", "  a");
    row("trim: ideographic blank kept", trim, "\u3000a\u3000", "\u3000a\u3000");
    row("trim: the variable changes", trimInPlace, "  C:\\a.jpg\r\n", "C:\\a.jpg");
    row("file name: bare", FileNameOfPath, "a.jpg", "a.jpg");
    row("file name: address", FileNameOfPath, "http://x.jp/d\\e/p.html", "p.html");
    row("file name: trailing backslash", FileNameOfPath, "C:\\pics\\", "");
    row("file name: dotted folder", FileNameOfPath, "C:\\a.b\\c", "c");
    row("after backslash: bare", NameAfterLastBackslash, "a.jpg", "");
    row("after backslash: address", NameAfterLastBackslash, "http://x.jp/d\\e/p.html", "e/p.html");
    row("after backslash: trailing", NameAfterLastBackslash, "C:\\pics\\", "");
    row("after backslash: dotted folder", NameAfterLastBackslash, "C:\\a.b\\c", "c");
    row("folder: bare", FolderOfPath, "a.jpg", "");
    row("folder: address", FolderOfPath, "http://x.jp/d\\e/p.html", "http://x.jp/d\\");
    row("folder: trailing backslash", FolderOfPath, "C:\\pics\\", "C:\\pics\\");
    row("folder: dotted folder", FolderOfPath, "C:\\a.b\\c", "C:\\a.b\\");
    row("last folder: bare", LastFolderName, "a.jpg", "a.jpg");
    row("last folder: address", LastFolderName, "http://x.jp/d\\e/p.html", "http://x.jp/d");
    row("last folder: trailing backslash", LastFolderName, "C:\\pics\\", "");
    row("last folder: dotted folder", LastFolderName, "C:\\a.b\\c", "c");
    row("before dot: two dots split at first", NameBeforeFirstDot, "a.b.c", "a");
    row("before dot: dotted folder", NameBeforeFirstDot, "c:\\a.b\\c", "c:\\a");
    row("before dot: leading dot", NameBeforeFirstDot, ".x", "");
    row("after dot: two dots split at first", TextAfterFirstDot, "a.b.c", "b.c");
    row("after dot: dotted folder", TextAfterFirstDot, "c:\\a.b\\c", "b\\c");
    row("after dot: leading dot", TextAfterFirstDot, ".x", "x");
    row("strip: trailing", StripTrailingBackslash, "C:\\a\\\\ ", "C:\\a");
    row("strip: doubles inside kept", StripTrailingBackslash, "C:\\\\a\\\\b", "C:\\\\a\\\\b");
    row("strip: root", StripTrailingBackslash, "C:\\", "C:");
    row("collapse: trailing, blanks kept", CollapseDoubleBackslash, " C:\\a\\\\ ", " C:\\a\\ ");
    row("collapse: none, trimmed", CollapseDoubleBackslash, " C:\\a\\b ", "C:\\a\\b");
    row("collapse: first of two", CollapseDoubleBackslash, "C:\\\\a\\\\b", "C:\\a\\\\b");
    row("collapse: root", CollapseDoubleBackslash, "C:\\", "C:\\");
}

void TestBasicText::oneText()
{
    QCOMPARE(FETCH(TextFunction, function)(FETCH(QString, in)), FETCH(QString, out));
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
    QCOMPARE(
        SerchAndReplace(FETCH(QString, source), FETCH(QString, find), FETCH(QString, replacement)),
        FETCH(QString, result));
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
    const FilePair split = SplitFilePair(FETCH(QString, pair));
    QCOMPARE(split.from, FETCH(QString, from));
    QCOMPARE(split.to, FETCH(QString, to));
}

QTEST_GUILESS_MAIN(TestBasicText)
#include "tst_BasicText.moc"
