// The three forms of a list: what one trip through the editor does to each
// kind of line, how the reader takes odd lines, how the two writers put rows
// out, and which lists come back the same from a second trip.
#include "EditorFixture.h"
#include "support/Fetch.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

QStringList crlfAll(QStringList rows)
{
    for (QString& row : rows)
        row = crlf(row);
    return rows;
}

// The user's words of the default CommandList.txt.
const bool kEnglish = true;
const bool kUser = false;

// A comment of `lines` lines in the array: the bare mark, then "l1" ....
QString longComment(int lines)
{
    QStringList parts{QStringLiteral("<<<<<")};
    for (int i = 1; i < lines; ++i)
        parts << QStringLiteral("l%1").arg(i);
    return parts.join(QStringLiteral("\r\n"));
}

// "<<<<<l1 <<<<<l2 <<<<<... l<n> <<<<<": lines 1 to n as the file writes them.
QString writtenLines(int n)
{
    QString text = QStringLiteral("<<<<<");
    for (int i = 1; i <= n; ++i)
        text += QStringLiteral("l%1 <<<<<").arg(i);
    return text;
}

// "l19 <<<<< <<<<<" and on: the line l19 with `from` to `to` marks behind it.
QString repeats(int from, int to)
{
    QString text;
    for (int marks = from; marks <= to; ++marks)
        text += QStringLiteral("l19") + QStringLiteral(" <<<<<").repeated(marks);
    return text;
}

} // namespace

class TestEditConversion : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lifeOfOneList_data();
    void lifeOfOneList();
    void reading_data();
    void reading();
    void writing_data();
    void writing();
    void longComments_data();
    void longComments();
    void roundTripIsStable_data();
    void roundTripIsStable();
    void roundTripMoves_data();
    void roundTripMoves();
    void emptyList();
    void lastRowWithoutDelay();
    void seenFlagsAndRowCount();
};

void TestEditConversion::lifeOfOneList_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QStringList>("messages");
    const auto row = [](const char* tag, const QString& list, bool english, const QStringList& rows,
                        const QString& written, const QStringList& messages = {}) {
        QTest::newRow(tag) << crlf(list) << english << crlfAll(rows) << crlf(written) << messages;
    };
    row("blank lines removed", "a.jpg\n\n      \nb.jpg\n\n", kEnglish,
        {"a.jpg||9999||", "b.jpg||9999||"}, "a.jpg\nb.jpg\n");
    row("comment lines removed", "' my show\na.jpg\n   ' indented note", kEnglish,
        {"a.jpg||9999||"}, "a.jpg\n");
    row("drive mark resolved", "*:\\pics\\a.jpg @WITH=*:\\snd\\a.wav ENDWITH", kEnglish,
        {"C:\\pics\\a.jpg|C:\\snd\\a.wav|9999||"},
        "C:\\pics\\a.jpg @WITH=C:\\snd\\a.wav ENDWITH\n");
    row("blanks of a line and of values", "   a.jpg   @WITH=   b.wav   ENDWITH   ", kEnglish,
        {"a.jpg|b.wav|9999||"}, "a.jpg @WITH=b.wav ENDWITH\n");
    row("items in another order",
        "a.jpg @OPTION=STOPSOUND ENDOPTION @COMMENT=<<<<<hi ENDCOMMENT @DELAY=3 ENDDELAY "
        "@WITH=b.wav ENDWITH",
        kEnglish, {"a.jpg|b.wav|3|<<<<<\nhi|STOPSOUND"},
        "a.jpg @WITH=b.wav ENDWITH @DELAY=3 ENDDELAY @COMMENT=<<<<<hi ENDCOMMENT "
        "@OPTION=STOPSOUND ENDOPTION\n");
    row("repeated item: the last wins", "a.jpg @DELAY=3 ENDDELAY @DELAY=7 ENDDELAY", kEnglish,
        {"a.jpg||7||"}, "a.jpg @DELAY=7 ENDDELAY\n");
    row("unknown item and all behind it removed",
        "a.jpg @WITH=b.wav ENDWITH @SIZE=3 ENDSIZE @DELAY=2 ENDDELAY", kEnglish,
        {"a.jpg|b.wav|9999||"}, "a.jpg @WITH=b.wav ENDWITH\n");
    row("delay 9999 removed", "a.jpg @DELAY=9999 ENDDELAY", kEnglish, {"a.jpg||9999||"}, "a.jpg\n");
    row("one-line comment gains the mark", "a.jpg @COMMENT=hello ENDCOMMENT", kEnglish,
        {"a.jpg||9999|<<<<<hello|"}, "a.jpg @COMMENT=<<<<<hello ENDCOMMENT\n");
    row("lower-case end words written as the words are",
        "a.jpg @with=b.wav endwith @delay=4 enddelay", kEnglish, {"a.jpg|b.wav|4||"},
        "a.jpg @WITH=b.wav ENDWITH @DELAY=4 ENDDELAY\n");
    row("user words: lower-case end word", "a.jpg @ト=b.wav デス", kUser, {"a.jpg|b.wav|9999||"},
        "a.jpg @ト=b.wav デス\n");
    row("option word to the user's word", "a.jpg @オプションコマンド=PICTURESCROLL デス", kUser,
        {"a.jpg||9999||PICTURESCROLL"}, "a.jpg @オプションコマンド=画像スクロール デス\n");
    row("option word to the English word", "a.jpg @OPTION=画像背景色2 ENDOPTION", kEnglish,
        {"a.jpg||9999||画像背景色2"}, "a.jpg @OPTION=PICTBACKCOL2 ENDOPTION\n");
    row("multi-line comment normalised",
        "a.jpg @COMMENT=<<<<<  first  <<<<<  second<<<<<third ENDCOMMENT", kEnglish,
        {"a.jpg||9999|<<<<<\n  first  \n  second\nthird|"},
        "a.jpg @COMMENT=<<<<<first <<<<<second <<<<<third ENDCOMMENT\n");
    row("comment naming a .txt becomes a file comment", "a.jpg @COMMENT=note.txt ENDCOMMENT",
        kEnglish, {"a.jpg||9999|note.txt|"}, "a.jpg @FILECOMMENT=note.txt ENDFILECOMMENT\n",
        {"Check"});
    row("the same with the user's words", "a.jpg @コメント=Note.TXT デス", kUser,
        {"a.jpg||9999|Note.TXT|"}, "a.jpg @ファイルコメント=Note.TXT デス\n", {"Check"});
}

void TestEditConversion::lifeOfOneList()
{
    EditorFixture f;
    f.setEnglish(FETCH(bool, english));
    f.read(FETCH(QString, list));
    QCOMPARE(f.rows(), FETCH(QStringList, rows));
    QCOMPARE(f.ui.boxes, FETCH(QStringList, messages));
    f.editor.ArrayToStanderdFile();
    QCOMPARE(f.tempText(), FETCH(QString, written));
    QCOMPARE(f.ui.boxes, FETCH(QStringList, messages)); // the writer says nothing more
}

void TestEditConversion::reading_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QStringList>("messages");
    const auto row = [](const char* tag, const QString& line, bool english, const QString& cells,
                        const QStringList& messages = {}) {
        QTest::newRow(tag) << line << english << crlf(cells) << messages;
    };
    row("only an item: empty main file", "@WITH=a.wav ENDWITH", kEnglish, "|a.wav|9999||");
    row("@ inside a value is passed",
        "a.jpg @COMMENT=<<<<<me@example.jp ENDCOMMENT @DELAY=1 ENDDELAY", kEnglish,
        "a.jpg||1|<<<<<\nme@example.jp|");
    row("@ in the main file cuts it and loses the items", "a@b.jpg @WITH=c.wav ENDWITH", kEnglish,
        "a||9999||");
    row("@ without = keeps the whole name", "photo@2x.png", kEnglish, "photo@2x.png||9999||");
    row("= without @ keeps the whole line", "a.jpg = b", kEnglish, "a.jpg = b||9999||");
    row("@ with no = ends the items", "a.jpg @WITH=b.wav ENDWITH @note", kEnglish,
        "a.jpg|b.wav|9999||");
    row("empty word ends the items", "a.jpg @=1 @WITH=b.wav ENDWITH", kEnglish, "a.jpg||9999||");
    row("blank before the word ends the items", "a.jpg @ WITH=b.wav ENDWITH", kEnglish,
        "a.jpg||9999||");
    row("no end word", "a.jpg @DELAY=4 @WITH=b.wav ENDWITH", kEnglish, "a.jpg||9999||",
        {" There is no word ENDDELAY"});
    row("no end word after an item keeps the item", "a.jpg @WITH=b.wav ENDWITH @OPTION=x", kEnglish,
        "a.jpg|b.wav|9999||", {" There is no word ENDOPTION"});
    row("mixed-case end word isn't found", "a.jpg @DELAY=3 EndDelay", kEnglish, "a.jpg||9999||",
        {" There is no word ENDDELAY"});
    row("end word named in English in user mode", "a.jpg @ト=b.wav", kUser, "a.jpg||9999||",
        {" There is no word ENDWITH"});
    row("English words are unknown in user mode", "a.jpg @WITH=b.wav ENDWITH", kUser,
        "a.jpg||9999||");
    row("a .txt comment without its end word", "a.jpg @COMMENT=note.txt", kEnglish, "a.jpg||9999||",
        {"Check", " There is no word ENDCOMMENT"});
    row(".txt anywhere on the line makes a file comment", "notes.txt @COMMENT=hello ENDCOMMENT",
        kEnglish, "notes.txt||9999|hello|", {"Check"});
    row("a marked comment naming a .txt stays a comment",
        "a.jpg @COMMENT=<<<<<see a.txt ENDCOMMENT", kEnglish, "a.jpg||9999|<<<<<\nsee a.txt|");
    row("the .txt rule needs the word as it stands", "a.jpg @comment=note.txt endcomment", kEnglish,
        "a.jpg||9999|<<<<<note.txt|");
    row("FILECOMMENT item", "a.jpg @FILECOMMENT=c:\\n.txt ENDFILECOMMENT", kEnglish,
        "a.jpg||9999|c:\\n.txt|");
    row("delay kept as text", "a.jpg @DELAY=soon ENDDELAY", kEnglish, "a.jpg||soon||");
    row("end word inside the value cuts it", "a.jpg @WITH=c:\\endwith\\a.wav ENDWITH", kEnglish,
        "a.jpg|c:\\|9999||");
    row("shared end word of the user's words", "a.jpg @コメント=<<<<<x デス @ト=b.wav デス", kUser,
        "a.jpg|b.wav|9999|<<<<<\nx|");
}

void TestEditConversion::reading()
{
    EditorFixture f;
    f.setEnglish(FETCH(bool, english));
    f.read(FETCH(QString, line));
    QCOMPARE(f.state.EditRowCount, qint16(1));
    QCOMPARE(f.row(1), FETCH(QString, row));
    QCOMPARE(f.ui.boxes, FETCH(QStringList, messages));
}

void TestEditConversion::writing_data()
{
    QTest::addColumn<QString>("cells");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("fileLine");
    QTest::addColumn<QString>("textLine");
    QTest::addColumn<QStringList>("messages");
    const auto row = [](const char* tag, const QString& cells, bool english,
                        const QString& fileLine, const QString& textLine,
                        const QStringList& messages = {}) {
        QTest::newRow(tag) << crlf(cells) << english << crlf(fileLine) << crlf(textLine)
                           << messages;
    };
    row("every item", "a.jpg|b.wav|5|<<<<<\na \nb|STOPSOUND", kEnglish,
        "a.jpg @WITH=b.wav ENDWITH @DELAY=5 ENDDELAY @COMMENT=<<<<<a <<<<<b ENDCOMMENT "
        "@OPTION=STOPSOUND ENDOPTION",
        "a.jpg @WITH=b.wav ENDWITH @DELAY=5 ENDDELAY @COMMENT=<<<<<a <<<<<b  ENDCOMMENT "
        "@OPTION=STOPSOUND ENDOPTION");
    row("empty delay", "a.jpg|||", kEnglish, "a.jpg @DELAY= ENDDELAY", "a.jpg @DELAY= ENDDELAY");
    row("delay 9999 with blanks", "a.jpg|| 9999 ||", kEnglish, "a.jpg", "a.jpg");
    row("one-line comment", "a.jpg||9999|<<<<<hello|", kEnglish,
        "a.jpg @COMMENT=<<<<<hello ENDCOMMENT", "a.jpg @COMMENT=<<<<<hello ENDCOMMENT");
    row("eight characters: the text form empties it", "a.jpg||9999|<<<<<abc|", kEnglish,
        "a.jpg @COMMENT=<<<<<abc ENDCOMMENT", "a.jpg @COMMENT= ENDCOMMENT");
    row("a typed two-character comment", "a.jpg||9999|<<<<< ab|", kEnglish,
        "a.jpg @COMMENT=<<<<< ab ENDCOMMENT", "a.jpg @COMMENT= ENDCOMMENT");
    row("first line not the bare mark loses its separator", "a.jpg||9999|<<<<<a\nb|", kEnglish,
        "a.jpg @COMMENT=<<<<<ab ENDCOMMENT", "a.jpg @COMMENT=<<<<<ab  ENDCOMMENT");
    row("blanks and stray line ends of middle lines", "a.jpg||9999|<<<<<\n  a  \n\n b |", kEnglish,
        "a.jpg @COMMENT=<<<<<a <<<<< <<<<< b  ENDCOMMENT",
        "a.jpg @COMMENT=<<<<<a <<<<< <<<<<b  ENDCOMMENT");
    row("a comment mentioning a .txt goes out as a file comment, mark and all",
        "a.jpg||9999|<<<<<see a.txt|", kEnglish, "a.jpg @FILECOMMENT=<<<<<see a.txt ENDFILECOMMENT",
        "a.jpg @FILECOMMENT=<<<<<see a.txt ENDFILECOMMENT");
    row("a comment of neither kind is not written", "a.jpg||9999|plain words|", kEnglish, "a.jpg",
        "a.jpg", {"Check", "Check"});
    row("option with more text isn't translated", "a.jpg||9999||PICTURESCROLL 2", kUser,
        "a.jpg @オプションコマンド=PICTURESCROLL 2 デス",
        "a.jpg @オプションコマンド=PICTURESCROLL 2 デス");
    row("option word in English mode stays", "a.jpg||9999||STOPSOUND", kEnglish,
        "a.jpg @OPTION=STOPSOUND ENDOPTION", "a.jpg @OPTION=STOPSOUND ENDOPTION");
    row("user's option word in English mode", "a.jpg||9999||リスト自動スタート_ON", kEnglish,
        "a.jpg @OPTION=LISTAUTOSTARTON ENDOPTION", "a.jpg @OPTION=リスト自動スタート_ON ENDOPTION");
    row("English option word in user mode", "a.jpg||9999||PICTBACKCOL5", kUser,
        "a.jpg @オプションコマンド=画像背景色5 デス",
        "a.jpg @オプションコマンド=PICTBACKCOL5 デス");
    row("option case differs: no translation", "a.jpg||9999||stopsound", kUser,
        "a.jpg @オプションコマンド=stopsound デス", "a.jpg @オプションコマンド=stopsound デス");
}

void TestEditConversion::writing()
{
    EditorFixture f;
    f.setEnglish(FETCH(bool, english));
    f.state.EditArray.redim(kListColumns, 2);
    f.state.EditRowCount = 1;
    f.state.EditMaxLineLength = 200;
    const QString cells = FETCH(QString, cells);
    f.setRow(1, cells);
    f.editor.ArrayToStanderdFile();
    QCOMPARE(f.tempText(), FETCH(QString, fileLine) + QStringLiteral("\r\n"));
    f.setRow(1, cells); // the file writer translated the option in place
    const QString text = f.editor.ArrayToStanderdText();
    QCOMPARE(text, FETCH(QString, textLine).leftJustified(208) + QStringLiteral("\r\n"));
    QCOMPARE(f.ui.boxes, FETCH(QStringList, messages));
    QVERIFY(f.state.EditorOn);
}

void TestEditConversion::longComments_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<QString>("written");
    QTest::newRow("21 lines come out whole") << 21 << writtenLines(19) + "l20";
    // Line breaks past the twentieth aren't kept: each line that needs one
    // repeats the line before it with one more mark, and l20, l21 are lost.
    QTest::newRow("22 lines") << 22 << writtenLines(19) + repeats(2, 3);
    QTest::newRow("30 lines") << 30 << writtenLines(19) + repeats(2, 11);
}

void TestEditConversion::longComments()
{
    EditorFixture f;
    f.setEnglish(true);
    f.state.EditArray.redim(kListColumns, 2);
    f.state.EditRowCount = 1;
    f.setRow(1, "a.jpg||9999|" + longComment(FETCH(int, lines)) + "|");
    f.editor.ArrayToStanderdFile();
    QCOMPARE(f.tempText(),
             "a.jpg @COMMENT=" + FETCH(QString, written) + QStringLiteral(" ENDCOMMENT\r\n"));
}

void TestEditConversion::roundTripIsStable_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<bool>("english");
    const auto row = [](const char* tag, const QString& list, bool english) {
        QTest::newRow(tag) << crlf(list) << english;
    };
    row("every line form, English",
        "' a show\n  a.jpg  \n*:\\b.jpg @delay=4 enddelay @WITH=b.wav ENDWITH\n"
        "c.jpg @COMMENT=<<<<<one<<<<<  two  <<<<<three ENDCOMMENT @OPTION=COMMENTSET2 ENDOPTION\n"
        "d.jpg @COMMENT=plain ENDCOMMENT\n@WITH=e.wav ENDWITH\nf.jpg @COMMENT=f.txt ENDCOMMENT\n"
        "g.jpg @X=1 @DELAY=2 ENDDELAY\nh.jpg @DELAY=9999 ENDDELAY\nphoto@2x.png\n"
        "i.jpg @OPTION=画像スクロール ENDOPTION\nj.jpg @DELAY=5\nk.jpg @DELAY= ENDDELAY",
        kEnglish);
    row("every line form, the user's words",
        "a.jpg @ト=b.wav デス @オクレ=3 デス\nc.jpg @コメント=<<<<<x<<<<<y デス\n"
        "d.jpg @オプションコマンド=PICTBACKCOL3 デス\ne.jpg @ファイルコメント=e.txt デス",
        kUser);
    row("21-line comment", "a.jpg @COMMENT=" + writtenLines(19) + "l20 ENDCOMMENT", kEnglish);
}

void TestEditConversion::roundTripIsStable()
{
    EditorFixture f;
    f.setEnglish(FETCH(bool, english));
    const QString first = f.trip(FETCH(QString, list));
    const QString second = f.trip(first);
    QCOMPARE(second, first);
}

void TestEditConversion::roundTripMoves_data()
{
    QTest::addColumn<QString>("commandList");
    QTest::addColumn<QString>("list");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QStringList>("trips");
    const auto row = [](const char* tag, const QString& commandList, const QString& list,
                        bool english, const QStringList& trips) {
        QTest::newRow(tag) << crlf(commandList) << crlf(list) << english << crlfAll(trips);
    };
    // Lines past the twentieth line break repeat the line before them with
    // one more mark; read back, they are more lines, and so on each trip.
    row("comment of 23 lines grows", "", "a.jpg @COMMENT=" + writtenLines(21) + "l22 ENDCOMMENT",
        kEnglish,
        {"a.jpg @COMMENT=" + writtenLines(19) + repeats(2, 4) + " ENDCOMMENT\n",
         "a.jpg @COMMENT=" + writtenLines(19) + repeats(2, 11) + " ENDCOMMENT\n"});
    row("user words that swap two option words",
        "STOPSOUND = PICTURESCROLL\nPICTURESCROLL = STOPSOUND\n",
        "a.jpg @OPTION=STOPSOUND ENDOPTION", kUser,
        {"a.jpg @OPTION=PICTURESCROLL ENDOPTION\n", "a.jpg @OPTION=STOPSOUND ENDOPTION\n",
         "a.jpg @OPTION=PICTURESCROLL ENDOPTION\n"});
    row("PICTBACKCOL2 without a synonym becomes PICTBACKCOL1 in user mode", "STOPSOUND = 止め\n",
        "a.jpg @OPTION=PICTBACKCOL2 ENDOPTION", kUser,
        {"a.jpg @OPTION=PICTBACKCOL1 ENDOPTION\n", "a.jpg @OPTION=PICTBACKCOL1 ENDOPTION\n"});
    row("a value holding its own end word is cut on the first trip", "",
        "a.jpg @WITH=c:\\endwith\\a.wav ENDWITH", kEnglish,
        {"a.jpg @WITH=c:\\ ENDWITH\n", "a.jpg @WITH=c:\\ ENDWITH\n"});
    row("a marked comment naming a .txt breaks its line on the first trip", "",
        "a.jpg @COMMENT=<<<<<see a.txt ENDCOMMENT", kEnglish,
        {"a.jpg @FILECOMMENT=<<<<<\nsee a.txt ENDFILECOMMENT\n",
         "a.jpg\nsee a.txt ENDFILECOMMENT\n", "a.jpg\nsee a.txt ENDFILECOMMENT\n"});
}

void TestEditConversion::roundTripMoves()
{
    EditorFixture f;
    const QString commandList = FETCH(QString, commandList);
    if (!commandList.isEmpty())
        f.home.writeFile(kCommandListFile, commandList.toUtf8());
    f.setEnglish(FETCH(bool, english));
    QString text = FETCH(QString, list);
    for (const QString& expected : FETCH(QStringList, trips)) {
        text = f.trip(text);
        QCOMPARE(text, expected);
    }
}

void TestEditConversion::emptyList()
{
    EditorFixture f;
    f.setEnglish(true);
    const QString editorText = f.read(QString());
    QCOMPARE(f.state.EditRowCount, qint16(0));
    QCOMPARE(editorText, QString());
    f.editor.ArrayToStanderdFile();
    QCOMPARE(f.tempText(), QStringLiteral("\r\n"));
    QCOMPARE(f.editor.ArrayToStanderdText(), QString());
}

void TestEditConversion::lastRowWithoutDelay()
{
    EditorFixture f;
    f.setEnglish(true);
    f.read(QStringLiteral("a.jpg\r\nb.jpg"));
    f.state.EditArray.set(kColDelay, 2, u"");
    f.editor.ArrayToStanderdFile();
    QCOMPARE(f.tempText(), QStringLiteral("a.jpg\r\nb.jpg @DELAY= ENDDELAY\r\n"));
    f.editor.PutDataFromFileToArray();
    QCOMPARE(f.row(2), QStringLiteral("b.jpg||||")); // the reading keeps it empty
    f.editor.ArrayToEditorText();
    QCOMPARE(f.row(2), QStringLiteral("b.jpg||9999||"));
}

void TestEditConversion::seenFlagsAndRowCount()
{
    EditorFixture f;
    f.setEnglish(true);
    const QString note = QStringLiteral("' this note is the longest line of the whole list");
    f.read(note + QStringLiteral("\r\na.jpg @DELAY=1 ENDDELAY\r\nb.jpg @COMMENT=x.txt ENDCOMMENT"));
    QCOMPARE(f.state.EditRowCount, qint16(2));
    // The longest line read counts the comment line too.
    QCOMPARE(f.state.EditMaxLineLength, qint16(note.size()));
    QVERIFY(f.editor.DelaySeen && f.editor.CommentSeen);
    QVERIFY(!f.editor.WithSeen && !f.editor.OptionSeen);
    f.read(QStringLiteral("c.jpg @WITH=c.wav ENDWITH"));
    QVERIFY(f.editor.WithSeen && f.editor.DelaySeen); // never cleared by a reading
}

QTEST_GUILESS_MAIN(TestEditConversion)
#include "tst_EditConversion.moc"
