// Folder replacement through the whole text with its one step back.
#include "editor/ReplaceEditModel.h"
#include "support/Fakes.h"
#include "support/Fetch.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestReplaceEdit : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void replace_data();
    void replace();
    void replaceTwiceAndUndo();
};

void TestReplaceEdit::replace_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("find");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<QString>("result");
    const auto row = [](const char* tag, const QString& text, const QString& find,
                        const QString& replacement, const QString& result) {
        QTest::newRow(tag) << text << find << replacement << result;
    };
    row("drive to its mark through the list", "c:\\a.jpg @WITH=c:\\b.wav ENDWITH\r\nc:\\c.jpg\r\n",
        "c:", "*:", "*:\\a.jpg @WITH=*:\\b.wav ENDWITH\r\n*:\\c.jpg\r\n");
    row("a folder to another", "C:\\old\\a.jpg\r\nC:\\old\\sub\\b.jpg", "C:\\old\\", "D:\\new\\",
        "D:\\new\\a.jpg\r\nD:\\new\\sub\\b.jpg");
    row("case counts", "c:\\a.jpg", "C:", "*:", "c:\\a.jpg");
    row("find absent", "a.jpg", "x", "y", "a.jpg");
    row("find longer than the text", "ab", "abc", "x", "ab");
    row("find inside its replacement ends", "a-a", "a", "aa", "aa-aa");
    row("blanks are kept", "c: x", "c: ", "d:", "d:x");
    row("empty text", "", "c:", "*:", "");
    row("empty find leaves the text", "c:\\a", "", "x", "c:\\a");
}

void TestReplaceEdit::replace()
{
    FakeDialogs ui;
    ReplaceEditModel model(ui);
    const QString text = FETCH(QString, text);
    QCOMPARE(model.CommandReplace(text, FETCH(QString, find), FETCH(QString, replacement)),
             FETCH(QString, result));
    QCOMPARE(ui.beeps, 1); // the beep sounds whether anything changed or not
    QCOMPARE(model.UndoText, text);
}

void TestReplaceEdit::replaceTwiceAndUndo()
{
    FakeDialogs ui;
    ReplaceEditModel model(ui);
    const QString once = model.CommandReplace(QStringLiteral("c:\\a"), "c:", "d:");
    const QString twice = model.CommandReplace(once, "d:", "*:");
    QCOMPARE(twice, QStringLiteral("*:\\a"));
    QCOMPARE(model.CommandUndo(), QStringLiteral("d:\\a")); // only the last state is kept
    QCOMPARE(model.CommandUndo(), QStringLiteral("d:\\a"));
    QCOMPARE(ui.beeps, 4);
    QString result = QStringLiteral("old");
    model.SerchAndReplace(QStringLiteral("x.x"), ".", ",", result);
    QCOMPARE(result, QStringLiteral("x,x"));
}

QTEST_GUILESS_MAIN(TestReplaceEdit)
#include "tst_ReplaceEdit.moc"
