// The editor text: records of one width, the row under a caret with CR LF
// counted as two, the items of the row for the form, moving up and down,
// the thumbnail's place and the change between English and user words.
#include "EditorFixture.h"
#include "editor/CaretOffsets.h"
#include "support/Fetch.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

// Row 2 has a comment of three lines: its record takes four lines of the box.
const QString kList = QStringLiteral("a.jpg @WITH=b.wav ENDWITH\r\n"
                                     "c.jpg @COMMENT=<<<<<one<<<<<two<<<<<three ENDCOMMENT\r\n"
                                     "d.jpg @DELAY=3 ENDDELAY @OPTION=STOPSOUND ENDOPTION\r\n"
                                     "e.jpg");

QString boxText(QString editorText)
{
    return editorText.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

} // namespace

class TestEditorText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void recordsOfOneWidth();
    void clickSelectsRow_data();
    void clickSelectsRow();
    void clickBehindTheLastRecord();
    void rowItems_data();
    void rowItems();
    void upAndDown();
    void selectionPastSixteenBits();
    void valueLongerThanItsLine();
    void caretOffsetsBothWays();
    void thumbnail_data();
    void thumbnail();
    void englishAndUserWords();
};

void TestEditorText::recordsOfOneWidth()
{
    EditorFixture f;
    f.setEnglish(true);
    const QString text = f.read(kList);
    QVERIFY(f.state.EditorOn);
    const int w = f.editor.recordWidth();
    // The longest line read, row 2, and ten.
    QCOMPARE(w, int(QStringLiteral("c.jpg @COMMENT=<<<<<one<<<<<two<<<<<three ENDCOMMENT").size()) +
                    10);
    QCOMPARE(text.size(), 4 * w);
    QCOMPARE(text.mid(0, w), QStringLiteral("a.jpg @WITH=b.wav ENDWITH").leftJustified(w - 2) +
                                 QStringLiteral("\r\n"));
    // The comment stands with its line breaks and under the COMMENT word.
    QCOMPARE(text.mid(w, w),
             QStringLiteral("c.jpg @COMMENT=<<<<<\r\none\r\ntwo\r\nthree ENDCOMMENT")
                     .leftJustified(w - 2) +
                 QStringLiteral("\r\n"));
    QCOMPARE(text.mid(3 * w, w), QStringLiteral("e.jpg").leftJustified(w - 2) + "\r\n");
}

void TestEditorText::clickSelectsRow_data()
{
    QTest::addColumn<int>("record"); // from 0
    QTest::addColumn<QString>("where");
    for (int record = 0; record < 4; ++record) {
        for (const char* where : {"start", "middle", "end"}) {
            QTest::addRow("record %d, %s", record, where) << record << QString(where);
        }
    }
    QTest::newRow("second line of the comment") << 1 << "comment";
}

void TestEditorText::clickSelectsRow()
{
    EditorFixture f;
    f.setEnglish(true);
    const QString box = boxText(f.read(kList));
    const int record = FETCH(int, record);
    const QStringList names{"a.jpg", "c.jpg", "d.jpg", "e.jpg"};
    const int start = int(box.indexOf(names[record]));
    const int next = record < 3 ? int(box.indexOf(names[record + 1])) : int(box.size());
    const QString where = FETCH(QString, where);
    int position = start;
    if (where == QLatin1String("middle"))
        position = (start + next) / 2;
    else if (where == QLatin1String("end"))
        position = next - 1; // on the record's own line break
    else if (where == QLatin1String("comment"))
        position = int(box.indexOf(QLatin1String("two")));

    const CaretOffsets offsets(box);
    const EditRowView view = f.editor.SelectRow(offsets.toCrLf(position));
    QCOMPARE(int(f.state.EditRow), record);
    QCOMPARE(view.TextFileName, names[record]);
    QCOMPARE(view.LabelYourPos, record + 1);
    // The whole record is selected.
    QVERIFY(view.selStart);
    QCOMPARE(offsets.toBox(*view.selStart), start);
    QCOMPARE(offsets.toBox(*view.selStart + view.selLength), next);
}

void TestEditorText::clickBehindTheLastRecord()
{
    EditorFixture f;
    f.setEnglish(true);
    const QString text = f.read(kList);
    const EditRowView view = f.editor.SelectRow(int(text.size()) + 3);
    QCOMPARE(f.state.EditRow, f.state.EditRowCount);
    QCOMPARE(view.LabelYourPos, 5);
    QVERIFY(!view.CheckMain && !view.CheckDelay && !view.CheckComment);
    QVERIFY(view.TextFileName.isEmpty() && view.TextWaitTime.isEmpty());
    QVERIFY(!view.biggerVisible);
}

void TestEditorText::rowItems_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("checks");     // main with delay comment file option
    QTest::addColumn<QStringList>("fields"); // file, sub, wait, text, file comment, bigger, combo
    QTest::addColumn<QString>("picture");
    QTest::addColumn<int>("bigger"); // -1 unchanged, 0 hidden, 1 shown
    QTest::newRow("every item")
        << "C:\\p\\a.JPG @WITH=b.wav ENDWITH @DELAY=4 ENDDELAY @COMMENT=<<<<<hi ENDCOMMENT "
           "@OPTION=STOPSOUND ENDOPTION"
        << "111101"
        << QStringList{"C:\\p\\a.JPG", "b.wav", "4", "<<<<<\r\nhi", "", "<<<<<\r\nhi", "STOPSOUND"}
        << "C:\\p\\a.JPG" << 1;
    QTest::newRow("file comment read for the big box")
        << "C:\\p\\a.gif @FILECOMMENT=C:\\notes\\n.txt ENDFILECOMMENT"
        << "100010"
        << QStringList{"C:\\p\\a.gif", "", "", "", "C:\\notes\\n.txt", "hello\r\nworld", ""} << ""
        << 0;
    QTest::newRow("file comment that is gone")
        << "a.png @FILECOMMENT=C:\\gone.txt ENDFILECOMMENT"
        << "100010" << QStringList{"a.png", "", "", "", "C:\\gone.txt", "", ""} << "a.png" << 0;
    QTest::newRow("empty delay is shown")
        << "a.bmp @DELAY= ENDDELAY"
        << "101000" << QStringList{"a.bmp", "", "", "", "", "", ""} << "a.bmp" << -1;
}

void TestEditorText::rowItems()
{
    EditorFixture f;
    f.setEnglish(true);
    f.home.writeFile(QStringLiteral("notes/n.txt"), "hello\r\nworld\r\n");
    f.read(FETCH(QString, line));
    const EditRowView v = f.editor.SelectRow(0);
    const QString checks = FETCH(QString, checks);
    const bool expected[6] = {checks[0] == '1', checks[1] == '1', checks[2] == '1',
                              checks[3] == '1', checks[4] == '1', checks[5] == '1'};
    QCOMPARE(v.CheckMain, expected[0]);
    QCOMPARE(v.CheckWith, expected[1]);
    QCOMPARE(v.CheckDelay, expected[2]);
    QCOMPARE(v.CheckComment, expected[3]);
    QCOMPARE(v.CheckTextComment, expected[4]);
    QCOMPARE(v.CheckOption, expected[5]);
    QCOMPARE((QStringList{v.TextFileName, v.TextSubFileName, v.TextWaitTime, v.TextText,
                          v.TextCommentFileName, v.TextBigger, v.ComboCommandList}),
             FETCH(QStringList, fields));
    QCOMPARE(v.picture, FETCH(QString, picture));
    const int bigger = FETCH(int, bigger);
    QCOMPARE(v.biggerVisible.has_value(), bigger >= 0);
    if (bigger >= 0)
        QCOMPARE(*v.biggerVisible, bigger == 1);
}

void TestEditorText::upAndDown()
{
    EditorFixture f;
    f.setEnglish(true);
    f.read(kList);
    const int w = f.editor.recordWidth();
    f.editor.SelectRow(0);
    QVERIFY(!f.editor.CommandUp()); // the first row
    QCOMPARE(f.editor.CommandDoun(), std::optional<int>(w + 1));
    f.editor.SelectRow(*f.editor.CommandDoun());
    QCOMPARE(int(f.state.EditRow), 1);
    f.editor.SelectRow(3 * w);
    QVERIFY(!f.editor.CommandDoun()); // the last row
    QCOMPARE(f.editor.CommandUp(), std::optional<int>(2 * w + 1));
}

void TestEditorText::selectionPastSixteenBits()
{
    EditorFixture f;
    f.setEnglish(true);
    QStringList lines;
    for (int i = 1; i <= 1200; ++i)
        lines << QStringLiteral("C:\\pics\\picture_%1.jpg").arg(i, 4, 10, QLatin1Char('0'));
    f.read(lines.join(QStringLiteral("\r\n")));
    const int w = f.editor.recordWidth();
    QCOMPARE(w, 34);
    // 1000 * 34 doesn't fit in 16 bits: the row is found, the selection stays.
    const EditRowView far = f.editor.SelectRow(1000 * w + 7);
    QCOMPARE(int(f.state.EditRow), 1000);
    QCOMPARE(far.TextFileName, QStringLiteral("C:\\pics\\picture_1001.jpg"));
    QVERIFY(!far.selStart);
    QCOMPARE(far.selLength, w);
    QVERIFY(!f.editor.CommandUp());
    QVERIFY(!f.editor.CommandDoun());
    const EditRowView near = f.editor.SelectRow(33 * w + 5);
    QCOMPARE(near.selStart, std::optional<int>(33 * w));
}

void TestEditorText::valueLongerThanItsLine()
{
    EditorFixture f;
    f.setEnglish(true);
    f.read(QStringLiteral("a.jpg\r\nb.jpg\r\nc.jpg"));
    f.state.EditArray.set(kColMain, 2, u"C:\\a much longer name.jpg");
    const QString text = f.editor.ArrayToEditorText();
    QCOMPARE(f.ui.boxes, QStringList{" Line text is bigger than you want"});
    // The row is a bare line break, and the rows behind it move up.
    QCOMPARE(text, QStringLiteral("a.jpg        \r\n\r\nc.jpg        \r\n"));
}

void TestEditorText::caretOffsetsBothWays()
{
    const CaretOffsets offsets(u"ab\ncd\n\nef");
    const QList<int> crLf = {0, 1, 2, 4, 5, 6, 8, 10, 11, 12};
    for (int box = 0; box < crLf.size(); ++box) {
        QCOMPARE(offsets.toCrLf(box), crLf[box]);
        QCOMPARE(offsets.toBox(crLf[box]), box);
    }
    QCOMPARE(offsets.toBox(3), 2); // on the LF of a pair: the line break
}

void TestEditorText::thumbnail_data()
{
    QTest::addColumn<QSizeF>("picture");
    QTest::addColumn<QRectF>("rect");
    QTest::newRow("wide") << QSizeF(400, 100) << QRectF(0, 55, 200, 50);
    QTest::newRow("square counts as wide") << QSizeF(50, 50) << QRectF(0, -20, 200, 200);
    QTest::newRow("tall") << QSizeF(100, 200) << QRectF(60, 0, 80, 160);
}

void TestEditorText::thumbnail()
{
    QCOMPARE(EditTextModel::thumbnailRect(FETCH(QSizeF, picture), QSizeF(200, 160)),
             FETCH(QRectF, rect));
}

void TestEditorText::englishAndUserWords()
{
    EditorFixture f;
    f.setEnglish(false);
    f.read(QStringLiteral("a.jpg @ト=b.wav デス @オプションコマンド=画像スクロール デス"));
    const QString english = f.editor.CheckEnglishCommand_Click(true);
    QVERIFY(english.startsWith(
        QStringLiteral("a.jpg @WITH=b.wav ENDWITH @OPTION=PICTURESCROLL ENDOPTION ")));
    QCOMPARE(f.editor.comboWords().size(), 24);
    QCOMPARE(f.editor.comboWords().value(3), QStringLiteral("PICTURESCROLL"));
    QCOMPARE(f.editor.comboWords().value(23), QStringLiteral("LISTAUTOSTARTOFF"));
    QCOMPARE(f.ui.beeps, 21);
    QVERIFY(!f.editor.updatePending());
    const QString user = f.editor.CheckEnglishCommand_Click(false);
    QVERIFY(user.startsWith(
        QStringLiteral("a.jpg @ト=b.wav デス @オプションコマンド=画像スクロール デス ")));
    QCOMPARE(f.editor.comboWords().value(3), QStringLiteral("画像スクロール"));
}

QTEST_GUILESS_MAIN(TestEditorText)
#include "tst_EditorText.moc"
