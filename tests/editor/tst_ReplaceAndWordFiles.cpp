// Folder replacement through the whole text with its one step back, and the
// word files edited as whole texts: the command words rebuild the editor's
// rows, the extension slots give the captions of the file selection.
#include "EditorFixture.h"
#include "editor/ReplaceEditModel.h"
#include "editor/WordFiles.h"
#include "list/ExtTable.h"
#include "support/Fetch.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestReplaceAndWordFiles : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void replace_data();
    void replace();
    void replaceTwiceAndUndo();
    void commandWordsRebuildTheRows();
    void commandListReset();
    void extensionSlots_data();
    void extensionSlots();
    void extensionReset();
};

void TestReplaceAndWordFiles::replace_data()
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

void TestReplaceAndWordFiles::replace()
{
    FakeDialogs ui;
    ReplaceEditModel model(ui);
    const QString text = FETCH(QString, text);
    QCOMPARE(model.CommandReplace(text, FETCH(QString, find), FETCH(QString, replacement)),
             FETCH(QString, result));
    QCOMPARE(ui.beeps, 1); // the beep sounds whether anything changed or not
    QCOMPARE(model.UndoText, text);
}

void TestReplaceAndWordFiles::replaceTwiceAndUndo()
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

void TestReplaceAndWordFiles::commandWordsRebuildTheRows()
{
    EditorFixture f;
    f.setEnglish(false);
    f.read(QStringLiteral("a.jpg @ト=b.wav デス @オプションコマンド=画像スクロール デス"));
    QVERIFY(commandListText(f.basics).contains(QStringLiteral("WITH = ト")));
    QString words = defaultCommandListLines().join(QStringLiteral("\r\n"));
    words.replace(QStringLiteral("WITH = ト"), QStringLiteral("WITH = ツキ"));
    const QString text = storeCommandList(f.basics, f.editor, words);
    QCOMPARE(f.home.readFile(kCommandListFile), text::encodeForFile(words + "\r\n"));
    // Out through the English words and back through the new user's words.
    QVERIFY(text.startsWith(
        QStringLiteral("a.jpg @ツキ=b.wav デス @オプションコマンド=画像スクロール デス ")));
    QCOMPARE(f.state.CommandWord.value(kWith), QStringLiteral("ツキ"));
    QCOMPARE(f.ui.beeps, 1);
}

void TestReplaceAndWordFiles::commandListReset()
{
    EditorFixture f;
    const QByteArray first = f.home.readFile(kCommandListFile);
    f.home.writeFile(kCommandListFile, "WITH = X\r\n");
    resetCommandList(f.basics);
    QCOMPARE(f.home.readFile(kCommandListFile), first);
}

void TestReplaceAndWordFiles::extensionSlots_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");
    const QStringList defaults{"BMP", "JPG", "ICO", "XV3", "CO",  "WRL", "NFF", "WAV", "MID",
                               "MOV", "MPG", "AVI", "TXT", "DAT", "EXE", "HLP", "LST"};
    QStringList three = defaults;
    three[0] = "PNG";
    three[1] = "WEBP";
    three[2] = "?"; // a line without "=" takes a slot as "?"
    QTest::newRow("three slots: the rest stay")
        << "png = \r\nWebp = TEXT\r\n' note\r\ngif" << three;
    QTest::newRow("no slot at all") << "' only a note" << defaults;
}

void TestReplaceAndWordFiles::extensionSlots()
{
    EditorFixture f;
    PutExtTypeToArray(f.basics);
    ReadExtTypeToArray(f.basics);
    const QStringList names = storeExtType(f.basics, FETCH(QString, text));
    QCOMPARE(names, FETCH(QStringList, names));
    QCOMPARE(f.ui.beeps, 21);
    QCOMPARE(extTypeText(f.basics), FETCH(QString, text));
}

void TestReplaceAndWordFiles::extensionReset()
{
    EditorFixture f;
    PutExtTypeToArray(f.basics);
    const QByteArray first = f.home.readFile("Lumentas/ForProgramRun_KDR/ExtType.dat");
    storeExtType(f.basics, QStringLiteral("PNG ="));
    resetExtType(f.basics);
    QCOMPARE(f.home.readFile("Lumentas/ForProgramRun_KDR/ExtType.dat"), first);
}

QTEST_GUILESS_MAIN(TestReplaceAndWordFiles)
#include "tst_ReplaceAndWordFiles.moc"
