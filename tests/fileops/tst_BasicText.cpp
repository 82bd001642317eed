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
    void fixedText_data();
    void fixedText();
    void pathParts_data();
    void pathParts();
    void dots_data();
    void dots();
    void backslashes_data();
    void backslashes();
    void serchAndReplace_data();
    void serchAndReplace();
    void stamp();
    void pair_data();
    void pair();
};

void TestBasicText::trimLineEnds_data()
{
    QTest::addColumn<QString>("in");
    QTest::addColumn<QString>("out");
    QTest::newRow("blanks") << "  a b  "
                            << "a b";
    QTest::newRow("crlf end") << "a.jpg\r\n"
                              << "a.jpg";
    QTest::newRow("blanks behind crlf") << "a.jpg \r\n  "
                                        << "a.jpg";
    QTest::newRow("nul padding") << QString("abc") + QString(5, QChar(0)) << "abc";
    QTest::newRow("crlf at start kept blanks") << "\r\n  a"
                                               << "  a";
    QTest::newRow("tab kept") << "\ta\t"
                              << "\ta\t";
    QTest::newRow("ideographic blank kept")
        << QString::fromUtf8("\u3000a\u3000") << QString::fromUtf8("\u3000a\u3000");
    QTest::newRow("only line ends") << "\r\n\r\n"
                                    << "";
    QTest::newRow("empty") << ""
                           << "";
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

void TestBasicText::fixedText_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("text");
    QTest::newRow("all NUL") << QString(15, QChar(0)) << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("padded") << "MS UI Gothic   "
                            << "MS UI Gothic";
    QTest::newRow("NULs then blanks then text")
        << QString(2, QChar(0)) + "  abc  " + QString(3, QChar(0)) << "abc";
    QTest::newRow("all blanks") << QString(15, ' ') << "";
}

void TestBasicText::fixedText()
{
    QFETCH(QString, field);
    QFETCH(QString, text);
    QCOMPARE(FixedText(field), text);
}

void TestBasicText::pathParts_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QString>("afterBackslash");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("lastFolder");
    QTest::newRow("file") << "C:\\pics\\a.jpg"
                          << "a.jpg"
                          << "a.jpg"
                          << "C:\\pics\\"
                          << "pics";
    QTest::newRow("folder") << "C:\\pics\\trip"
                            << "trip"
                            << "trip"
                            << "C:\\pics\\"
                            << "trip";
    QTest::newRow("bare name") << "a.jpg"
                               << "a.jpg"
                               << ""
                               << ""
                               << "a.jpg";
    QTest::newRow("address") << "http://x.jp/d\\e/p.html"
                             << "p.html"
                             << "e/p.html"
                             << "http://x.jp/d\\"
                             << "http://x.jp/d";
    QTest::newRow("trailing backslash") << "C:\\pics\\"
                                        << ""
                                        << ""
                                        << "C:\\pics\\"
                                        << "";
    QTest::newRow("dotted folder") << "C:\\a.b\\c"
                                   << "c"
                                   << "c"
                                   << "C:\\a.b\\"
                                   << "c";
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
    QTest::newRow("one dot") << "a.jpg"
                             << "a"
                             << "jpg";
    QTest::newRow("two dots split at first") << "a.b.c"
                                             << "a"
                                             << "b.c";
    QTest::newRow("no dot") << "readme"
                            << ""
                            << "";
    QTest::newRow("dotted folder in path") << "c:\\a.b\\c"
                                           << "c:\\a"
                                           << "b\\c";
    QTest::newRow("leading dot") << ".x"
                                 << ""
                                 << "x";
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
    QTest::newRow("plain") << "C:\\a"
                           << "C:\\a"
                           << "C:\\a";
    QTest::newRow("trailing") << "C:\\a\\\\ "
                              << "C:\\a"
                              << "C:\\a\\";
    QTest::newRow("blank") << "   "
                           << ""
                           << "";
    QTest::newRow("two doubles, first collapsed") << "C:\\\\a\\\\b"
                                                  << "C:\\\\a\\\\b"
                                                  << "C:\\a\\\\b";
    QTest::newRow("root") << "C:\\"
                          << "C:"
                          << "C:\\";
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
    QTest::newRow("every hit") << "c:\\a c:\\b"
                               << "c:"
                               << "*:"
                               << "*:\\a *:\\b";
    QTest::newRow("case-sensitive") << "c:\\a"
                                    << "C:"
                                    << "*:"
                                    << "c:\\a";
    QTest::newRow("find in replacement ends") << "aaa"
                                              << "a"
                                              << "aa"
                                              << "aaaaaa";
    QTest::newRow("no overlap") << "aaaa"
                                << "aa"
                                << "b"
                                << "bb";
    QTest::newRow("absent") << "abc"
                            << "x"
                            << "y"
                            << "abc";
    QTest::newRow("find longer than text") << "ab"
                                           << "abc"
                                           << "y"
                                           << "ab";
    QTest::newRow("empty find") << "abc"
                                << ""
                                << "y"
                                << "abc";
    QTest::newRow("empty text") << ""
                                << "a"
                                << "b"
                                << "";
    QTest::newRow("to empty") << "a-b-c"
                              << "-"
                              << ""
                              << "abc";
}

void TestBasicText::serchAndReplace()
{
    QFETCH(QString, source);
    QFETCH(QString, find);
    QFETCH(QString, replacement);
    QCOMPARE(SerchAndReplace(source, find, replacement), FETCH(QString, result));
}

void TestBasicText::stamp()
{
    const QDateTime moment(QDate(2026, 11, 5), QTime(4, 5, 9));
    QCOMPARE(MakeDateTimeStamp(moment), QStringLiteral("2026_11_05_04_05_09"));
}

void TestBasicText::pair_data()
{
    QTest::addColumn<QString>("pair");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::newRow("plain") << "C:\\a.jpg,C:\\b.jpg"
                           << "C:\\a.jpg"
                           << "C:\\b.jpg";
    QTest::newRow("comma in target") << "C:\\a.jpg,C:\\b,c.jpg"
                                     << "C:\\a.jpg"
                                     << "C:\\b,c.jpg";
    QTest::newRow("no comma") << "C:\\a.jpg"
                              << "C:\\a.jpg"
                              << "";
    QTest::newRow("blank after comma") << "a, b"
                                       << "a"
                                       << " b";
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
