// The list editor in the whole program, driven by object name with the
// mouse where a user would use it: a click anywhere in a record selects its
// row (also behind a comment of three lines), the operations with their
// yellow CommandUpdate or the automatic update, one step back, the arrows
// at both ends, Esc bringing the last comment back, the English and the
// user's words, the ways back to standard text, and the save through the
// selection window: whole, and shown with the new delay, or nothing.
#include "EditorApp.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/TextCodec.h"
#include "platform/Twips.h"
#include "show/FormMain.h"
#include "state/ProgramState.h"
#include "support/Fetch.h"
#include "support/OddFiles.h"
#include "support/Shots.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QRadioButton>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

constexpr qint32 kResting = 0x00C0C0;

// What the editor shows for the selected row: the filled fields and the
// ticked boxes.
QString shown(const EditorApp& a)
{
    QStringList parts;
    const auto field = [&](const char* name, const QString& value) {
        if (!value.isEmpty())
            parts << QLatin1String(name) + u'=' + value;
    };
    field("main", a.control<QLineEdit>("TextFileName")->text());
    field("with", a.control<QLineEdit>("TextSubFileName")->text());
    field("delay", a.control<QLineEdit>("TextWaitTime")->text());
    field("comment", a.control<QPlainTextEdit>("TextText")->toPlainText());
    field("option", a.control<QComboBox>("ComboCommandList")->currentText());
    QString ticks;
    for (const char* box : {"CheckMain", "CheckWith", "CheckDelay", "CheckComment",
                            "CheckTextComment", "CheckOption"})
        ticks += a.control<QCheckBox>(box)->isChecked() ? u'x' : u'.';
    parts << ticks;
    return parts.join(u" | "_s);
}

// Runs "row N", "type FIELD TEXT", "press NAME", "dialog NAME FILE" in order.
void run(EditorApp& a, const QStringList& steps)
{
    for (const QString& step : steps) {
        const QString verb = step.section(u' ', 0, 0);
        const QString name = step.section(u' ', 1, 1);
        const QString rest = step.section(u' ', 2);
        if (verb == u"row") {
            a.clickRow(name.toInt());
        } else if (verb == u"press") {
            a.press(name.toLatin1().constData());
        } else if (verb == u"dialog") {
            a.ui.fileNames.enqueue(a.home.native(rest));
            a.press(name.toLatin1().constData());
        } else if (verb == u"type") {
            QWidget* field = a.editor->findChild<QWidget*>(name);
            if (auto* box = qobject_cast<QPlainTextEdit*>(field)) {
                a.clickField(box->viewport());
                box->setPlainText(rest);
            } else if (auto* combo = qobject_cast<QComboBox*>(field)) {
                a.clickField(combo);
                combo->setEditText(rest);
            } else {
                a.clickField(field);
                if (!rest.isEmpty())
                    static_cast<QLineEdit*>(field)->setText(rest);
            }
        }
    }
}

} // namespace

class TestFormEditText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void opensWithRowOne();
    void clickSelectsRecord_data();
    void clickSelectsRecord();
    void fileCommentInTheBigBox_data();
    void fileCommentInTheBigBox();
    void operations_data();
    void operations();
    void oneStepBack();
    void allwaysUpdateColours();
    void fileDialogs();
    void upAndDown_data();
    void upAndDown();
    void escRecallsTheLastComment();
    void englishAndUserWords();
    void hintsWhileNoItemIsChosen_data();
    void hintsWhileNoItemIsChosen();
    void bindingsStartTheEditorsFile();
    void waysOut_data();
    void waysOut();
    void savedThroughTheSelection();
    void listThatCantBeWrittenStaysWhole();
};

void TestFormEditText::opensWithRowOne()
{
    EditorApp a;
    QVERIFY(a.editor->isVisible());
    QVERIFY(a.app->state().EditorOn);
    QVERIFY(a.select->TextLarge); // the text at its large size
    QCOMPARE(a.control<QLabel>("LabelNom")->text(), u"5"_s);
    QCOMPARE(a.control<QLabel>("LabelYourPos")->text(), u"1"_s);
    QCOMPARE(shown(a), u"main=C:\\pics\\a.jpg | delay=3 | x.x..."_s);
    QCOMPARE(a.text1()->selStart(), 0);
    QCOMPARE(a.text1()->selLength(), a.width());
    QVERIFY(a.control<QCheckBox>("CheckEnglishCommand")->isChecked()); // the list's words
    // Every record has one width; the comment's line breaks count in it.
    QCOMPARE(a.text1()->text().size(), 5 * a.width());
    QCOMPARE(a.record(2), u"C:\\pics\\b.jpg @COMMENT=<<<<<\r\nx \r\ny ENDCOMMENT"_s);
}

void TestFormEditText::clickSelectsRecord_data()
{
    QTest::addColumn<int>("record"); // from 1
    QTest::addColumn<int>("within"); // offset in the record; -1: its last character
    QTest::addColumn<QString>("shown");
    const QString fourth = u"main=C:\\pics\\d.png | option=STOPSOUND | x....x"_s;
    QTest::newRow("start of the record after the comment") << 4 << 0 << fourth;
    QTest::newRow("its middle") << 4 << 20 << fourth;
    QTest::newRow("its padding at the end") << 4 << -1 << fourth;
    QTest::newRow("the third record, right after the comment")
        << 3 << 0 << u"main=C:\\pics\\c.jpg | with=C:\\snd\\s.wav | xx...."_s;
    const QString second = u"main=C:\\pics\\b.jpg | comment=<<<<<\nx \ny | x..x.."_s;
    QTest::newRow("the comment's first line") << 2 << 3 << second;
    QTest::newRow("the comment's last line")
        << 2 << int(u"C:\\pics\\b.jpg @COMMENT=<<<<<\r\nx \r\n"_s.size()) << second;
    QTest::newRow("the last record") << 5 << 2 << u"main=C:\\pics\\e.jpg | x....."_s;
}

void TestFormEditText::clickSelectsRecord()
{
    EditorApp a;
    const int record = FETCH(int, record);
    const int within = FETCH(int, within);
    a.clickAt((record - 1) * a.width() + (within < 0 ? a.width() - 3 : within));
    QCOMPARE(a.app->state().EditRow, qint16(record - 1));
    QCOMPARE(shown(a), FETCH(QString, shown));
    QCOMPARE(a.control<QLabel>("LabelYourPos")->text(), QString::number(record));
    // The whole record shows selected, its line end too.
    QCOMPARE(a.text1()->selStart(), (record - 1) * a.width());
    QCOMPARE(a.text1()->selLength(), a.width());
    QVERIFY(a.text1()->selText().startsWith(a.record(record)));
    QVERIFY(a.text1()->selText().endsWith(u" \r\n"_s));
    // No item is chosen until the user turns to a field.
    QVERIFY(a.control<QRadioButton>("OptionNone")->isChecked());
    // No row here holds a file comment, so the big box never goes.
    QVERIFY(a.control<QPlainTextEdit>("TextBigger")->isVisible());
    if (record == 4)
        saveShot(a.select, u"editor_record_selected"_s);
}

void TestFormEditText::fileCommentInTheBigBox_data()
{
    QTest::addColumn<QStringList>("rows"); // clicked in turn
    QTest::addColumn<bool>("visible");
    QTest::addColumn<QString>("bigger");
    QTest::addColumn<QString>("name"); // TextCommentFileName
    QTest::newRow("a file comment: its text, the box put away")
        << QStringList{"row 2"} << false << u"from the file"_s << u"C:\\notes\\n.txt"_s;
    QTest::newRow("a file that is gone: the name still shows")
        << QStringList{"row 3"} << false << QString() << u"C:\\notes\\gone.txt"_s;
    QTest::newRow("a comment after it: the box is back")
        << QStringList{"row 2", "row 1"} << true << u"<<<<<hi"_s << QString();
    QTest::newRow("a row without: the box stays as it was")
        << QStringList{"row 2", "row 4"} << false << QString() << QString();
}

void TestFormEditText::fileCommentInTheBigBox()
{
    const QString list = u"C:\\pics\\a.jpg @COMMENT=hi ENDCOMMENT\r\n"
                         "C:\\pics\\b.jpg @FILECOMMENT=C:\\notes\\n.txt ENDFILECOMMENT\r\n"
                         "C:\\pics\\c.jpg @FILECOMMENT=C:\\notes\\gone.txt ENDFILECOMMENT\r\n"
                         "C:\\pics\\d.png\r\n"_s;
    EditorApp a(list);
    a.home.writeFile(u"notes/n.txt"_s, "from the file"); // read when the row is clicked
    run(a, FETCH(QStringList, rows));
    auto* bigger = a.control<QPlainTextEdit>("TextBigger");
    QCOMPARE(bigger->isVisible(), FETCH(bool, visible));
    QCOMPARE(bigger->toPlainText(), FETCH(QString, bigger));
    QCOMPARE(a.control<QLineEdit>("TextCommentFileName")->text(), FETCH(QString, name));
    QCOMPARE(a.control<QCheckBox>("CheckTextComment")->isChecked(),
             !FETCH(QString, name).isEmpty());
}

void TestFormEditText::operations_data()
{
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<qint32>("colour"); // of CommandUpdate after the steps
    QTest::addColumn<int>("record");
    QTest::addColumn<QString>("after"); // the record after CommandUpdate
    QTest::addColumn<int>("count");
    const auto row = [](const char* tag, const QStringList& steps, qint32 colour, int record,
                        const QString& after, int count) {
        QTest::newRow(tag) << steps << colour << record << after << count;
    };
    row("a delay typed and added", {"row 4", "type TextWaitTime 7", "press CommandAdd"},
        kColorYellow, 4, u"C:\\pics\\d.png @DELAY=7 ENDDELAY @OPTION=STOPSOUND ENDOPTION"_s, 5);
    row("the option cut", {"row 4", "type ComboCommandList", "press CommandCut"}, kColorYellow, 4,
        u"C:\\pics\\d.png"_s, 5);
    row("a companion copied to another row",
        {"row 3", "type TextSubFileName", "press CommandCopy", "row 5", "type TextSubFileName",
         "press CommandPast"},
        kColorYellow, 5, u"C:\\pics\\e.jpg @WITH=C:\\snd\\s.wav ENDWITH"_s, 5);
    row("a comment typed", {"row 5", "type TextText hello", "press CommandAdd"}, kColorYellow, 5,
        u"C:\\pics\\e.jpg @COMMENT=<<<<<\r\n hello ENDCOMMENT"_s, 5);
    row("a file comment from the dialog",
        {"row 1", "dialog CommandFileComment notes/n.txt", "type TextCommentFileName",
         "press CommandAdd"},
        kColorYellow, 1,
        u"C:\\pics\\a.jpg @DELAY=3 ENDDELAY @COMMENT=C:\\notes\\n.txt ENDCOMMENT"_s, 5);
    row("a line inserted before the selected one", {"row 2", "press CommandInsertLine"},
        kColorYellow, 2, u"New Line"_s, 6);
    row("updated at once",
        {"press CheckAllwaysUpdate", "row 1", "type TextFileName C:\\pics\\z.jpg",
         "press CommandAdd"},
        kResting, 1, u"C:\\pics\\z.jpg @DELAY=3 ENDDELAY"_s, 5);
    row("no item chosen: nothing happens", {"row 4", "press CommandCut"}, kResting, 4,
        u"C:\\pics\\d.png @OPTION=STOPSOUND ENDOPTION"_s, 5);
}

void TestFormEditText::operations()
{
    EditorApp a;
    const int record = FETCH(int, record);
    const QString before = a.record(record);
    run(a, FETCH(QStringList, steps));
    QPushButton* update = a.control<QPushButton>("CommandUpdate");
    const qint32 colour = FETCH(qint32, colour);
    QCOMPARE(backColor(update), colour);
    const bool atOnce = colour == kResting;
    // The text follows at once only with the automatic update.
    QCOMPARE(a.record(record) == before, !atOnce || FETCH(QString, after) == before);
    const int at = a.text1()->selStart();
    update->click();
    QCOMPARE(backColor(update), kResting);
    QCOMPARE(a.record(record), FETCH(QString, after));
    QCOMPARE(a.control<QLabel>("LabelNom")->text(), QString::number(FETCH(int, count)));
    QCOMPARE(a.text1()->selStart(), at); // the caret stays where it was
}

void TestFormEditText::oneStepBack()
{
    EditorApp a;
    run(a, {"row 4", "type TextWaitTime 7", "press CommandAdd", "press CommandUpdate"});
    QVERIFY(a.record(4).contains(u"@DELAY=7 ENDDELAY"_s));
    const int beeps = a.ui.beeps;
    a.press("CommandRecover");
    QCOMPARE(a.record(4), u"C:\\pics\\d.png @OPTION=STOPSOUND ENDOPTION"_s);
    QCOMPARE(a.ui.beeps, beeps + 1);
    a.press("CommandRecover"); // the same copy again
    QCOMPARE(a.record(4), u"C:\\pics\\d.png @OPTION=STOPSOUND ENDOPTION"_s);
    QCOMPARE(a.control<QLabel>("LabelNom")->text(), u"5"_s);
}

void TestFormEditText::allwaysUpdateColours()
{
    EditorApp a;
    auto* check = a.control<QCheckBox>("CheckAllwaysUpdate");
    auto* frame = a.control<QFrame>("ShapeAllwaysUpdate");
    QCOMPARE(backColor(check), kColorYellow); // unticked at first
    QCOMPARE(foreColor(frame), kColorYellow);
    check->click();
    QCOMPARE(backColor(check), kResting);
    QCOMPARE(foreColor(frame), kResting);
    check->click();
    QCOMPARE(backColor(check), kColorYellow);
    QCOMPARE(foreColor(frame), kColorYellow);
}

void TestFormEditText::fileDialogs()
{
    EditorApp a;
    auto* field = a.control<QLineEdit>("TextSubFileName");
    field->setText(u"C:\\\\snd\\s.wav"_s); // a doubled backslash is collapsed for the dialog
    a.ui.fileNames.enqueue(std::nullopt);
    a.press("CommandSab");
    QCOMPARE(field->text(), u"C:\\\\snd\\s.wav"_s); // cancelled: nothing changes
    QCOMPARE(a.ui.dialogStarts.last(), a.home.native(u"snd/s.wav"_s));
    QCOMPARE(a.ui.dialogFilters.last(), u"(*.*)|*.*"_s);
    a.ui.fileNames.enqueue(a.home.native(u"snd/t.wav"_s));
    a.press("CommandSab");
    QCOMPARE(field->text(), u"C:\\snd\\t.wav"_s);
    // Pressing the button doesn't choose the item.
    QVERIFY(a.control<QRadioButton>("OptionNone")->isChecked());
}

void TestFormEditText::upAndDown_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("to");
    QTest::newRow("up at the top stays") << 1 << "CommandUp" << 1;
    QTest::newRow("down from the top") << 1 << "CommandDoun" << 2;
    QTest::newRow("down past the comment") << 2 << "CommandDoun" << 3;
    QTest::newRow("up onto the comment") << 3 << "CommandUp" << 2;
    QTest::newRow("down at the bottom stays") << 5 << "CommandDoun" << 5;
    QTest::newRow("up from the bottom") << 5 << "CommandUp" << 4;
}

void TestFormEditText::upAndDown()
{
    EditorApp a;
    const int to = FETCH(int, to);
    a.clickRow(FETCH(int, from));
    a.press(FETCH(QString, button).toLatin1().constData());
    QCOMPARE(a.app->state().EditRow, qint16(to - 1));
    QCOMPARE(a.control<QLineEdit>("TextFileName")->text(),
             u"C:\\pics\\%1.jpg"_s.arg(QChar(u'a' + to - 1)).replace(u"d.jpg"_s, u"d.png"_s));
    QCOMPARE(a.text1()->selStart(), (to - 1) * a.width());
    QCOMPARE(a.control<QLabel>("LabelYourPos")->text(), QString::number(to));
}

void TestFormEditText::escRecallsTheLastComment()
{
    EditorApp a;
    a.clickRow(2);
    a.clickRow(5);
    auto* comment = a.control<QPlainTextEdit>("TextText");
    QCOMPARE(comment->toPlainText(), QString()); // the row has none
    a.clickField(comment->viewport());
    QTest::keyClick(comment, Qt::Key_Escape);
    QCOMPARE(comment->toPlainText(), u"<<<<<\nx \ny"_s);
    QCOMPARE(a.control<QPlainTextEdit>("TextBigger")->toPlainText(), u"<<<<<\nx \ny"_s);
    QVERIFY(a.control<QRadioButton>("OptionSelectComment")->isChecked());
    a.press("CommandAdd");
    a.press("CommandUpdate");
    QCOMPARE(a.record(5), u"C:\\pics\\e.jpg @COMMENT=<<<<<\r\nx \r\ny ENDCOMMENT"_s);
    // What is written in the big box is the comment too.
    a.clickRow(1);
    auto* bigger = a.control<QPlainTextEdit>("TextBigger");
    bigger->setPlainText(u"big"_s);
    QCOMPARE(comment->toPlainText(), u"big"_s);
    QVERIFY(a.control<QRadioButton>("OptionSelectComment")->isChecked());
}

void TestFormEditText::englishAndUserWords()
{
    EditorApp a;
    auto* english = a.control<QCheckBox>("CheckEnglishCommand");
    auto* combo = a.control<QComboBox>("ComboCommandList");
    QCOMPARE(combo->itemText(0), u"STOPSOUND"_s);
    QCOMPARE(combo->count(), 24);
    english->click();
    QVERIFY(!english->isChecked());
    QCOMPARE(a.record(1), u"C:\\pics\\a.jpg @オクレ=3 デス"_s);
    QCOMPARE(a.record(4), u"C:\\pics\\d.png @オプションコマンド=サウンドストップ デス"_s);
    QCOMPARE(combo->itemText(0), u"サウンドストップ"_s);
    QCOMPARE(combo->currentIndex(), 0);
    QCOMPARE(a.ui.beeps % 21, 0); // the burst
    english->click();
    QCOMPARE(a.record(4), u"C:\\pics\\d.png @OPTION=STOPSOUND ENDOPTION"_s);
    QCOMPARE(combo->itemText(0), u"STOPSOUND"_s);
}

void TestFormEditText::hintsWhileNoItemIsChosen_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("itemChosen");
    QTest::addColumn<QString>("text"); // empty: no hint
    QTest::addColumn<bool>("frames");
    const QString small = u"実行前に、対象となる項目を選んでください "_s;
    QTest::newRow("cut") << "CommandCut" << false << small << false;
    QTest::newRow("copy, placed as cut") << "CommandCopy" << false << small << false;
    QTest::newRow("paste, placed as cut") << "CommandPast" << false << small << false;
    QTest::newRow("add, with the frames")
        << "CommandAdd" << false
        << u"実行前に、対象となる項目を選んでください\r\n黄色で囲まれたテキストが書き込まれる対象となります"_s
        << true;
    QTest::newRow("an item chosen: no hint") << "CommandCut" << true << QString() << false;
}

void TestFormEditText::hintsWhileNoItemIsChosen()
{
    EditorApp a;
    const QString button = FETCH(QString, button);
    if (FETCH(bool, itemChosen))
        a.clickField(a.control<QLineEdit>("TextFileName"));
    // While the hint shows, the marks stand beside the fields.
    QStringList during;
    a.clock.onWait = [&](qint64 ms) {
        QString seen = QString::number(ms);
        for (int i = 0; i < 6; ++i)
            seen +=
                a.control<QLabel>(qPrintable(u"LabelItem_%1"_s.arg(i)))->isVisible() ? u'L' : u'.';
        for (int i = 0; i < 2; ++i)
            seen += a.control<QFrame>(qPrintable(u"Shape1_%1"_s.arg(i)))->isVisible() ? u'F' : u'.';
        during << seen;
    };
    auto* target = a.control<QPushButton>(button.toLatin1().constData());
    // Mouse moves come in runs: only every other one shows the hint.
    for (const QPoint at : {QPoint(5, 5), QPoint(6, 5)}) {
        QMouseEvent move(QEvent::MouseMove, at, target->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(target, &move);
    }
    a.clock.onWait = nullptr;
    const QString text = FETCH(QString, text);
    if (text.isEmpty()) {
        QVERIFY(a.ui.messages.isEmpty());
        return;
    }
    QCOMPARE(a.ui.messages.size(), 1);
    QCOMPARE(a.ui.messages[0].text, text);
    QCOMPARE(during, QStringList{FETCH(bool, frames) ? u"1000LLLLLLFF"_s : u"1000LLLLLL.."_s});
    QVERIFY(!a.ui.messageShown);
    QVERIFY(!a.control<QLabel>("LabelItem_0")->isVisible());
    // The three small buttons all measure from CommandCut.
    if (button != u"CommandAdd") {
        auto* cut = a.control<QPushButton>("CommandCut");
        const QPoint at = cut->mapTo(a.editor, QPoint(0, 0));
        QCOMPARE(a.ui.messages[0].left, int(twLeft(a.editor)) + int(pixelsToTwips(at.x())) - 100);
        QCOMPARE(a.ui.messages[0].top, int(twTop(a.editor)) + int(pixelsToTwips(at.y())) + 300);
    }
}

void TestFormEditText::bindingsStartTheEditorsFile()
{
    EditorApp a;
    a.app->state().SelectedFile = u"C:\\pics\\selected.jpg"_s;
    a.app->state().DirecData.PictureEditorPath = u"C:\\bin\\paint"_s;
    a.clickRow(4);
    // While the editor is on, the programs of FormEdit2 take the editor's file.
    a.select->CommandEditor->click();
    auto* edit2 = a.app->forms().existing(u"FormEdit2"_s);
    QVERIFY(edit2 && edit2->isVisible());
    edit2->findChild<QPushButton*>(u"CommandMsPaint"_s)->click();
    QCOMPARE(a.launcher.commandLines.value(0), u"C:\\bin\\paint C:\\pics\\d.png"_s);
    // Back to standard text, they take the file selected in the selection.
    a.press("CommandStanderdText");
    edit2->findChild<QPushButton*>(u"CommandMsPaint"_s)->click();
    QCOMPARE(a.launcher.commandLines.value(1), u"C:\\bin\\paint C:\\pics\\selected.jpg"_s);
}

void TestFormEditText::waysOut_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("standard"); // Text1 holds standard text afterwards
    QTest::addColumn<bool>("editorOn");
    QTest::newRow("standard text") << "CommandStanderdText" << kAnswerYes << true << false;
    QTest::newRow("exit, converting") << "Command1" << kAnswerYes << true << false;
    QTest::newRow("exit as it stands") << "Command1" << kAnswerNo << false << false;
    QTest::newRow("editor off, converting") << "CommandEditOff" << kAnswerYes << true << true;
    QTest::newRow("editor off as it stands") << "CommandEditOff" << kAnswerNo << false << false;
}

void TestFormEditText::waysOut()
{
    EditorApp a;
    a.ui.answers.enqueue(FETCH(int, answer));
    a.press(FETCH(QString, button).toLatin1().constData());
    QVERIFY(!a.editor->isVisible());
    QVERIFY(a.select->isVisible());
    QCOMPARE(a.app->state().EditorOn, FETCH(bool, editorOn));
    const QStringList lines = a.text1()->text().split(u"\r\n"_s);
    if (FETCH(bool, standard)) {
        QCOMPARE(lines.value(1).trimmed(), u"C:\\pics\\b.jpg @COMMENT=<<<<<x <<<<<y  ENDCOMMENT"_s);
        QCOMPARE(lines.size(), 6);
    } else {
        QCOMPARE(lines.value(1).trimmed(), u"C:\\pics\\b.jpg @COMMENT=<<<<<"_s);
    }
    if (!a.app->state().EditorOn)
        return;
    // With the text converted and the editor still on, a click fills the
    // fields of the window loaded anew, which stays put away.
    a.clickRow(3);
    QVERIFY(!a.editor->isVisible());
    QCOMPARE(a.control<QLineEdit>("TextFileName")->text(), u"C:\\pics\\c.jpg"_s);
}

void TestFormEditText::savedThroughTheSelection()
{
    EditorApp a;
    run(a, {"row 1", "type TextWaitTime 5", "press CommandAdd"}); // not updated: still yellow
    a.ui.fileNames.enqueue(a.home.native(u"lists/edited.lst"_s));
    a.select->CommandSaveFile->click();
    QVERIFY(!a.app->state().EditorOn);
    QVERIFY(!a.editor->isVisible());
    QStringList lines = text::decode(a.home.readFile(u"lists/edited.lst"_s)).split(u"\r\n"_s);
    for (QString& line : lines)
        line = line.trimmed();
    QCOMPARE(lines, (QStringList{"C:\\pics\\a.jpg @DELAY=5 ENDDELAY",
                                 "C:\\pics\\b.jpg @COMMENT=<<<<<x <<<<<y  ENDCOMMENT",
                                 "C:\\pics\\c.jpg @WITH=C:\\snd\\s.wav ENDWITH",
                                 "C:\\pics\\d.png @OPTION=STOPSOUND ENDOPTION", "C:\\pics\\e.jpg",
                                 "", ""}));
    // The show has the list, with the new delay on its first page.
    QCOMPARE(a.app->state().ListArray.at(kColDelay, 1), u"5"_s);
    QCOMPARE(a.app->state().ListArray.at(kColComment, 2), u"<<<<<\r\nx \r\ny"_s);
}

void TestFormEditText::listThatCantBeWrittenStaysWhole()
{
    EditorApp a;
    const QByteArray old = "C:\\pics\\old.jpg\r\n";
    a.home.writeFile(u"locked/old.lst"_s, old);
    run(a, {"row 1", "type TextWaitTime 5", "press CommandAdd"});
    const QString folder = a.home.native(u"locked"_s);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    {
        const PermissionBitsHold hold;
        a.ui.fileNames.enqueue(a.home.native(u"locked/old.lst"_s));
        a.select->CommandSaveFile->click();
    }
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QCOMPARE(a.home.readFile(u"locked/old.lst"_s), old);
    QVERIFY(a.ui.boxes.last().startsWith(u"ファイルに保存できませんでした。"_s));
    // Nothing of the edit is lost: the text is the edited list, standard again.
    QVERIFY(!a.app->state().EditorOn);
    QCOMPARE(a.text1()->text().section(u"\r\n"_s, 0, 0).trimmed(),
             u"C:\\pics\\a.jpg @DELAY=5 ENDDELAY"_s);
}

QTEST_MAIN(TestFormEditText)
#include "tst_FormEditText.moc"
