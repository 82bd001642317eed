// The line grammar: every line form in one table, English and the user's words.
#include "list/CommandWords.h"
#include "list/ListGrammar.h"
#include "support/Fetch.h"

#include <QTest>

using namespace lumen;

namespace {

QStringList userWords()
{
    QStringList words = englishCommandWords();
    applyUserCommandWords(words, defaultCommandListLines().join(QStringLiteral("\r\n")));
    return words;
}

} // namespace

class TestListGrammar : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void parse_data();
    void parse();
    void lineKinds_data();
    void lineKinds();
    void language_data();
    void language();
};

void TestListGrammar::parse_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QStringList>("row"); // main, with, delay, comment, option
    QTest::addColumn<QString>("message");

    const QString crlf = QStringLiteral("\r\n");
    const auto row = [](const char* tag, const QString& line, bool english,
                        const QStringList& cells, const QString& message) {
        QTest::newRow(tag) << line << english << cells << message;
    };
    row("all items",
        "C:\\pics\\a.jpg @WITH=C:\\snd\\a.wav ENDWITH @DELAY=5 ENDDELAY "
        "@COMMENT=<<<<<first line<<<<<second line ENDCOMMENT @OPTION=PICTURESCROLL ENDOPTION",
        true,
        QStringList{"C:\\pics\\a.jpg", "C:\\snd\\a.wav", "5",
                    "<<<<<" + crlf + "first line" + crlf + "second line", "PICTURESCROLL"},
        "");
    row("items in any order", "a.jpg @OPTION=STOPSOUND ENDOPTION @WITH=b.wav ENDWITH", true,
        QStringList{"a.jpg", "b.wav", "9999", "", "STOPSOUND"}, "");
    row("lower-case end words", "a.jpg @with=b.wav endwith @delay= 3 enddelay", true,
        QStringList{"a.jpg", "b.wav", "3", "", ""}, "");
    row("mixed-case end word isn't found", "a.jpg @WITH=b.wav EndWith", true,
        QStringList{"a.jpg", "", "9999", "", ""}, " There is no word ENDWITH");
    row("missing end word drops the rest", "a.jpg @DELAY=4 @WITH=b.wav ENDWITH", true,
        QStringList{"a.jpg", "", "9999", "", ""}, " There is no word ENDDELAY");
    row("no @: the whole line", "a.jpg = b", true, QStringList{"a.jpg = b", "", "9999", "", ""},
        "");
    row("blank between @ and word: passed over", "a.jpg @ WITH=b.wav ENDWITH", true,
        QStringList{"a.jpg", "", "9999", "", ""}, "");
    row("unknown word passed over", "a.jpg @SIZE=3 ENDSIZE @DELAY=2 ENDDELAY", true,
        QStringList{"a.jpg", "", "2", "", ""}, "");
    row("comment without the mark", "a.jpg @COMMENT=hello ENDCOMMENT", true,
        QStringList{"a.jpg", "", "9999", "<<<<<hello", ""}, "");
    row("@ inside a comment value",
        "a.jpg @COMMENT=<<<<<me@example.jp ENDCOMMENT @DELAY=1 ENDDELAY", true,
        QStringList{"a.jpg", "", "1", "<<<<<" + crlf + "me@example.jp", ""}, "");
    row("user words", "a.jpg @ト=b.wav デス @オクレ=6 デス @オプションコマンド=画像スクロール デス",
        false, QStringList{"a.jpg", "b.wav", "6", "", "画像スクロール"}, "");
    row("English words with the user's set are unknown", "a.jpg @WITH=b.wav ENDWITH", false,
        QStringList{"a.jpg", "", "9999", "", ""}, "");
    row("shared end word: each item ends at the next one",
        "a.jpg @コメント=<<<<<x デス @ト=b.wav デス", false,
        QStringList{"a.jpg", "b.wav", "9999", "<<<<<" + crlf + "x", ""}, "");
}

void TestListGrammar::parse()
{
    QFETCH(QString, line);
    const QStringList words = FETCH(bool, english) ? englishCommandWords() : userWords();
    const ParsedLine parsed = parseListLine(line, words);
    const ListRow& r = parsed.row;
    QCOMPARE((QStringList{r.main, r.with, r.delay, r.comment, r.option}), FETCH(QStringList, row));
    QCOMPARE(parsed.missingEndWord, FETCH(QString, message));
}

void TestListGrammar::lineKinds_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("kind");
    QTest::newRow("comment") << "' note" << int(LineKind::Comment);
    QTest::newRow("20 blanks, then a name") << QString(20, ' ') + "a.jpg" << int(LineKind::Command);
    QTest::newRow("21 blanks, then a name")
        << QString(21, ' ') + "a.jpg" << int(LineKind::TooIndented);
    QTest::newRow("a quote later on") << "a'b.jpg" << int(LineKind::Command);
}

void TestListGrammar::lineKinds()
{
    QCOMPARE(int(lineKindOf(FETCH(QString, line))), FETCH(int, kind));
}

void TestListGrammar::language_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("mode");
    const auto row = [](const char* tag, const QString& text, const QString& mode) {
        QTest::newRow(tag) << text << mode;
    };
    row("English item", "a.jpg\r\nb.jpg @DELAY=3 ENDDELAY", "EG");
    row("file comment counts", "a.jpg @FILECOMMENT=x ENDFILECOMMENT", "EG");
    row("lower case doesn't", "a.jpg @delay=3 enddelay", "JP");
    row("bare names", "a.jpg\r\nb.jpg", "JP");
}

void TestListGrammar::language()
{
    QCOMPARE(listLanguageOf(FETCH(QString, text)), FETCH(QString, mode));
}

QTEST_GUILESS_MAIN(TestListGrammar)
#include "tst_ListGrammar.moc"
