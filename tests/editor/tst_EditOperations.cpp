// The editing operations on the rows: what each leaves in EditArray and in
// the item clipboard, the one step back, the rebuild through the file, and
// the small memories of the form (the last comment, the hint turns).
#include "EditorFixture.h"
#include "support/Fetch.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

const QString kList = QStringLiteral("a.jpg @WITH=a.wav ENDWITH @DELAY=3 ENDDELAY "
                                     "@COMMENT=<<<<<hi ENDCOMMENT\r\n"
                                     "b.jpg\r\n"
                                     "c.jpg @OPTION=STOPSOUND ENDOPTION");
const QString kRowA = QStringLiteral("a.jpg|a.wav|3|<<<<<\r\nhi|");
const QString kRowB = QStringLiteral("b.jpg||9999||");
const QString kRowC = QStringLiteral("c.jpg||9999||STOPSOUND");

EditItem itemNamed(const QString& name)
{
    static const QMap<QString, EditItem> items = {
        {"None", EditItem::None},       {"Main", EditItem::Main},
        {"With", EditItem::With},       {"Delay", EditItem::Delay},
        {"Comment", EditItem::Comment}, {"TextComment", EditItem::TextComment},
        {"Option", EditItem::Option},
    };
    return items.value(name, EditItem::None);
}

// Runs "add:Item:value", "cut:Item", "copy:Item", "past:Item", "insert",
// "recover", "update" in order.
void run(EditTextModel& editor, const QStringList& steps)
{
    for (const QString& step : steps) {
        const QStringList parts = step.split(QLatin1Char(':'));
        const QString verb = parts[0];
        const EditItem item = itemNamed(parts.value(1));
        if (verb == QLatin1String("add"))
            editor.CommandAdd(item, parts.value(2));
        else if (verb == QLatin1String("cut"))
            editor.CommandCut(item);
        else if (verb == QLatin1String("copy"))
            editor.CommandCopy(item);
        else if (verb == QLatin1String("past"))
            editor.CommandPast(item);
        else if (verb == QLatin1String("insert"))
            editor.CommandInsertLine();
        else if (verb == QLatin1String("recover"))
            editor.CommandRecover();
        else if (verb == QLatin1String("update"))
            editor.CommandUpdate();
    }
}

} // namespace

class TestEditOperations : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void operations_data();
    void operations();
    void allwaysUpdateRebuilds();
    void updateWritesTheChange();
    void commentRecall();
    void hintsEveryOtherTime();
    void tempFileGoes();
};

void TestEditOperations::operations_data()
{
    QTest::addColumn<int>("editRow");
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QStringList>("rows");
    QTest::addColumn<QString>("clip");
    QTest::addColumn<int>("beeps");
    QTest::addColumn<bool>("pending");
    const auto row = [](const char* tag, int editRow, const QStringList& steps,
                        const QStringList& rows, const QString& clip, int beeps, bool pending) {
        QTest::newRow(tag) << editRow << steps << rows << clip << beeps << pending;
    };
    row("add a main file, trimmed", 1, {"add:Main:  x.jpg  "}, {kRowA, "x.jpg||9999||", kRowC}, "",
        1, true);
    row("add a comment: the mark and a blank in front", 1, {"add:Comment:two words "},
        {kRowA, "b.jpg||9999|<<<<< two words |", kRowC}, "", 1, true);
    row("add a comment that has the mark", 1, {"add:Comment:<<<<<x"},
        {kRowA, "b.jpg||9999|<<<<<x|", kRowC}, "", 1, true);
    row("add a delay of letters", 1, {"add:Delay:soon"}, {kRowA, "b.jpg||soon||", kRowC}, "", 1,
        true);
    row("add an option from the combo", 2, {"add:Option: PICTURESCROLL"},
        {kRowA, kRowB, "c.jpg||9999||PICTURESCROLL"}, "", 1, true);
    row("add with no item: nothing, not even a beep", 1, {"add:None:x"}, {kRowA, kRowB, kRowC}, "",
        0, false);
    row("before any selection row 1 is meant", 0, {"add:With:w.wav"},
        {"a.jpg|w.wav|3|<<<<<\r\nhi|", kRowB, kRowC}, "", 1, true);
    row("cut a delay: 9999 stays", 0, {"cut:Delay"},
        {"a.jpg|a.wav|9999|<<<<<\r\nhi|", kRowB, kRowC}, "3", 1, true);
    row("cut through the file comment option clears the comment", 0, {"cut:TextComment"},
        {"a.jpg|a.wav|3||", kRowB, kRowC}, "<<<<<\r\nhi", 1, true);
    row("cut with no item", 0, {"cut:None"}, {kRowA, kRowB, kRowC}, "", 0, false);
    row("copy keeps no copy", 0, {"copy:With"}, {kRowA, kRowB, kRowC}, "a.wav", 0, false);
    row("paste an empty clip on a delay leaves it empty", 1, {"past:Delay"},
        {kRowA, "b.jpg||||", kRowC}, "", 1, true);
    row("a comment pasted as a main file", 0, {"copy:Comment", "past:Main"},
        {"<<<<<\r\nhi|a.wav|3|<<<<<\r\nhi|", kRowB, kRowC}, "<<<<<\r\nhi", 1, true);
    row("insert with row 0 puts the new row first", 0, {"insert"},
        {"New Line||9999||", kRowA, kRowB, kRowC}, "", 1, true);
    row("insert stands before the selected row", 2, {"insert"},
        {kRowA, kRowB, "New Line||9999||", kRowC}, "", 1, true);
    row("undoing an insert leaves a blank row at the end", 0, {"insert", "recover"},
        {kRowA, kRowB, kRowC, "||9999||"}, "", 2, true);
    row("recover twice restores the same copy", 1, {"add:Main:x", "recover", "recover"},
        {kRowA, kRowB, kRowC}, "", 3, true);
    row("one step only", 1, {"add:Main:x", "add:Main:y", "recover"}, {kRowA, "x||9999||", kRowC},
        "", 3, true);
    row("recover before any change does nothing", 1, {"recover"}, {kRowA, kRowB, kRowC}, "", 0,
        false);
    row("update ends the yellow", 1, {"add:Main:x", "update"}, {kRowA, "x||9999||", kRowC}, "", 1,
        false);
}

void TestEditOperations::operations()
{
    EditorFixture f;
    f.setEnglish(true);
    f.read(kList);
    f.state.EditRow = qint16(FETCH(int, editRow));
    run(f.editor, FETCH(QStringList, steps));
    QCOMPARE(f.rows(), FETCH(QStringList, rows));
    QCOMPARE(f.editor.ItemClip, FETCH(QString, clip));
    QCOMPARE(f.ui.beeps, FETCH(int, beeps));
    QCOMPARE(f.editor.updatePending(), FETCH(bool, pending));
}

void TestEditOperations::allwaysUpdateRebuilds()
{
    EditorFixture f;
    f.setEnglish(true);
    f.read(kList);
    f.editor.allwaysUpdate = true;
    f.state.EditRow = 1;
    const EditChange change = f.editor.CommandAdd(EditItem::Delay, QStringLiteral("8"));
    QVERIFY(change.acted && change.rebuilt);
    QVERIFY(!f.editor.updatePending());
    const int w = f.editor.recordWidth();
    QCOMPARE(change.editorText.mid(w, w).trimmed(), QStringLiteral("b.jpg @DELAY=8 ENDDELAY"));
    QCOMPARE(f.editor.CommandCut(EditItem::None).acted, false);
}

void TestEditOperations::updateWritesTheChange()
{
    EditorFixture f;
    f.setEnglish(true);
    f.read(kList);
    f.state.EditRow = 2;
    f.editor.CommandAdd(EditItem::Comment, QStringLiteral("new"));
    QVERIFY(f.editor.updatePending());
    f.editor.CommandUpdate();
    QCOMPARE(f.tempText(),
             QStringLiteral("a.jpg @WITH=a.wav ENDWITH @DELAY=3 ENDDELAY @COMMENT=<<<<<hi "
                            "ENDCOMMENT\r\nb.jpg\r\nc.jpg @COMMENT=<<<<< new ENDCOMMENT "
                            "@OPTION=STOPSOUND ENDOPTION\r\n"));
    QCOMPARE(f.row(3), QStringLiteral("c.jpg||9999|<<<<<\r\n new|STOPSOUND"));
    QCOMPARE(f.state.EditRowCount, qint16(3));
}

void TestEditOperations::commentRecall()
{
    EditorFixture f;
    f.setEnglish(true);
    f.read(QStringLiteral("a.jpg @COMMENT=<<<<<x ENDCOMMENT\r\nb.jpg @COMMENT=b.txt ENDCOMMENT"));
    QCOMPARE(f.editor.commentTextChanged(QStringLiteral("one")), std::optional<QString>("one"));
    QCOMPARE(f.editor.commentTextChanged(QStringLiteral("  ")), std::nullopt);
    QCOMPARE(f.editor.commentTextChanged(QString()), std::nullopt);
    QCOMPARE(f.editor.lastComment(), QStringLiteral("one")); // Esc brings it back
    f.state.EditRow = 0;
    QVERIFY(f.editor.biggerGoesToComment());
    f.state.EditRow = 1;
    QVERIFY(!f.editor.biggerGoesToComment()); // a file comment keeps its big box apart
}

void TestEditOperations::hintsEveryOtherTime()
{
    EditorFixture f;
    QCOMPARE(f.editor.takeHintTurn(), true);
    QCOMPARE(f.editor.takeHintTurn(), false);
    QCOMPARE(f.editor.takeHintTurn(), true);
    QCOMPARE(itemHintText(), QStringLiteral("実行前に、対象となる項目を選んでください "));
    QCOMPARE(itemHintWithFramesText(),
             QStringLiteral("実行前に、対象となる項目を選んでください\r\n"
                            "黄色で囲まれたテキストが書き込まれる対象となります"));
}

void TestEditOperations::tempFileGoes()
{
    EditorFixture f;
    f.read(kList);
    QVERIFY(f.home.exists(kTempFile));
    f.editor.deleteTempFile();
    QVERIFY(!f.home.exists(kTempFile));
    f.editor.deleteTempFile(); // and a second time, with nothing there
    QVERIFY(f.ui.boxes.isEmpty());
}

QTEST_GUILESS_MAIN(TestEditOperations)
#include "tst_EditOperations.moc"
