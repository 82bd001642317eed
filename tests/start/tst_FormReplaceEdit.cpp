// Folder replacement in the whole program: opened from the selection window
// by CommandReplaceEditor, it replaces one piece of text through the whole
// of the selection's Text1 ("c:" by "*:" makes a list portable), takes one
// step back, and takes the text to find from a selection in Text1 and the
// new text from a folder chosen in the folder box while it is open.
#include "EditorApp.h"
#include "editor/FormReplaceEdit.h"
#include "platform/FileBoxes.h"
#include "state/ProgramState.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QLineEdit>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

const QString kList = u"c:\\pics\\a.jpg @WITH=c:\\snd\\s.wav ENDWITH\r\n"
                      "C:\\pics\\b.jpg\r\n"
                      "c:\\pics\\c.jpg @COMMENT=<<<<<on c: ENDCOMMENT\r\n"_s;

struct ReplaceApp : EditorApp {
    FormReplaceEdit* replace = nullptr;
    ReplaceApp()
        : EditorApp(QString())
    {
        text1()->setText(kList);
        select->CommandReplaceEditor->click();
        replace =
            static_cast<FormReplaceEdit*>(app->forms().existing(QStringLiteral("FormReplaceEdit")));
    }
};

} // namespace

class TestFormReplaceEdit : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void replaceThroughTheWholeText_data();
    void replaceThroughTheWholeText();
    void stepBack();
    void selectionAndFolderFillTheFields();
    void exitEndsThePassing();
};

void TestFormReplaceEdit::replaceThroughTheWholeText_data()
{
    QTest::addColumn<QString>("find");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<int>("presses");
    QTest::addColumn<QString>("after");
    QTest::newRow("c: by *:, the capital C: stays")
        << u"c:"_s << u"*:"_s << 1
        << u"*:\\pics\\a.jpg @WITH=*:\\snd\\s.wav ENDWITH\r\n"
           "C:\\pics\\b.jpg\r\n"
           "*:\\pics\\c.jpg @COMMENT=<<<<<on *: ENDCOMMENT\r\n"_s;
    QTest::newRow("a folder moved") << u"\\pics\\"_s << u"\\photos 2\\"_s << 1
                                    << u"c:\\photos 2\\a.jpg @WITH=c:\\snd\\s.wav ENDWITH\r\n"
                                       "C:\\photos 2\\b.jpg\r\n"
                                       "c:\\photos 2\\c.jpg @COMMENT=<<<<<on c: ENDCOMMENT\r\n"_s;
    QTest::newRow("the found text inside the new one ends")
        << u"a"_s << u"aa"_s << 2 << QString(kList).replace(u"a"_s, u"aaaa"_s);
    QTest::newRow("absent: the text as it was") << u"x:"_s << u"*:"_s << 1 << kList;
    QTest::newRow("longer than the text") << QString(kList + u"!"_s) << u"*"_s << 1 << kList;
}

void TestFormReplaceEdit::replaceThroughTheWholeText()
{
    ReplaceApp a;
    QVERIFY(a.replace->isVisible());
    QVERIFY(a.app->state().ReplaceOpen);
    QCOMPARE(a.replace->windowTitle(), u"ﾃﾞｨﾚｸﾄﾘｰの入れ替え"_s);
    // By object name, as a user finds them.
    a.replace->findChild<QLineEdit*>(u"Text1"_s)->setText(FETCH(QString, find));
    a.replace->findChild<QLineEdit*>(u"Text2"_s)->setText(FETCH(QString, replacement));
    const int beeps = a.ui.beeps;
    const int presses = FETCH(int, presses);
    for (int i = 0; i < presses; ++i)
        a.replace->findChild<QPushButton*>(u"CommandReplace"_s)->click();
    QCOMPARE(a.text1()->text(), FETCH(QString, after));
    QCOMPARE(a.ui.beeps, beeps + presses); // the beep sounds, found or not
    if (QTest::currentDataTag() == QLatin1String("c: by *:, the capital C: stays"))
        saveShot(a.replace, u"replace_edit"_s);
}

void TestFormReplaceEdit::stepBack()
{
    ReplaceApp a;
    a.replace->Text1->setText(u"c:"_s);
    a.replace->Text2->setText(u"*:"_s);
    a.replace->CommandReplace->click();
    const QString once = a.text1()->text();
    a.replace->Text1->setText(u"*:"_s);
    a.replace->Text2->setText(u"d:"_s);
    a.replace->CommandReplace->click();
    a.replace->CommandUndo->click();
    QCOMPARE(a.text1()->text(), once); // only the last state is kept
    a.replace->CommandUndo->click();
    QCOMPARE(a.text1()->text(), once);
}

void TestFormReplaceEdit::selectionAndFolderFillTheFields()
{
    ReplaceApp a;
    a.home.makeFolder(u"new place"_s);
    // A piece of a line selected in the selection's text is the text to find.
    a.text1()->setSelStart(int(u"c:\\"_s.size()));
    a.text1()->setSelLength(int(u"pics"_s.size()));
    QCOMPARE(a.replace->Text1->text(), u"pics"_s);
    // A selection over line ends is no text to find.
    a.text1()->setSelStart(0);
    a.text1()->setSelLength(60);
    QCOMPARE(a.replace->Text1->text(), u"pics"_s);
    // A folder chosen in the folder box is the new text.
    a.select->Dir1->setPath(u"C:\\new place"_s);
    QCOMPARE(a.replace->Text2->text(), u"C:\\new place"_s);
}

void TestFormReplaceEdit::exitEndsThePassing()
{
    ReplaceApp a;
    a.replace->CommandExit->click();
    QVERIFY(!a.replace->isVisible());
    QVERIFY(!a.app->state().ReplaceOpen);
    a.text1()->setSelStart(3);
    a.text1()->setSelLength(4);
    QCOMPARE(a.replace->Text1->text(), QString());
}

QTEST_MAIN(TestFormReplaceEdit)
#include "tst_FormReplaceEdit.moc"
