// Lists a user can hand the editor that are hard on it: very many lines, a
// very long line, long comments, runs of "@", words that collide, and a
// working file that can't be written.
#include "EditorFixture.h"
#include "support/Fetch.h"

#include <QDir>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestEditBadInput : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void mostRows();
    void lineOf5000Characters();
    void oddLines_data();
    void oddLines();
    void collidingWords_data();
    void collidingWords();
    void tempFileCannotBeWritten();
};

void TestEditBadInput::mostRows()
{
    EditorFixture f;
    f.setEnglish(true);
    const int lines = 32763;
    QString list;
    for (int i = 1; i <= lines; ++i)
        list +=
            QStringLiteral("C:\\p\\%1.jpg @DELAY=1 ENDDELAY\r\n").arg(i, 5, 10, QLatin1Char('0'));
    const QString text = f.read(list);
    QCOMPARE(int(f.state.EditRowCount), lines);
    const int w = f.editor.recordWidth();
    QCOMPARE(text.size(), qsizetype(lines) * w);
    const EditRowView last = f.editor.SelectRow(int(text.size()) - 1);
    QCOMPARE(int(f.state.EditRow), lines - 1);
    QCOMPARE(last.TextFileName, QStringLiteral("C:\\p\\32763.jpg"));
    f.editor.CommandInsertLine();
    f.editor.CommandUpdate();
    QCOMPARE(int(f.state.EditRowCount), lines + 1);
    QCOMPARE(f.row(lines), QStringLiteral("New Line||9999||"));
}

void TestEditBadInput::lineOf5000Characters()
{
    EditorFixture f;
    f.setEnglish(true);
    const QString name = QStringLiteral("C:\\") + QString(4950, QLatin1Char('a')) + ".jpg";
    const QString line = name + QStringLiteral(" @WITH=b.wav ENDWITH @DELAY=3 ENDDELAY");
    QCOMPARE(line.size(), 4995);
    const QString list = QStringLiteral("x.jpg\r\n") + line + QStringLiteral("\r\ny.jpg");
    const QString text = f.read(list);
    QCOMPARE(int(f.state.EditMaxLineLength), 4995);
    QCOMPARE(f.editor.recordWidth(), 5005);
    QCOMPARE(text.size(), 3 * 5005);
    QCOMPARE(f.editor.SelectRow(2 * 5005 + 4000).TextFileName, QStringLiteral("y.jpg"));
    QCOMPARE(f.editor.SelectRow(5005).TextFileName, name);
    QCOMPARE(f.trip(list), QStringLiteral("x.jpg\r\n") + line + QStringLiteral("\r\ny.jpg\r\n"));
}

void TestEditBadInput::oddLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("written");
    QStringList thirty;
    for (int i = 1; i <= 30; ++i)
        thirty << QStringLiteral("line %1").arg(i);
    QString thirtyRead = QStringLiteral("<<<<<\r\n") + thirty.join(QStringLiteral("\r\n"));
    // Twenty line breaks are kept: lines 20 to 30 come out as line 19 again,
    // each with one more mark.
    QString thirtyWritten = QStringLiteral("<<<<<");
    for (int i = 1; i <= 19; ++i)
        thirtyWritten += QStringLiteral("line %1 <<<<<").arg(i);
    for (int marks = 2; marks <= 12; ++marks)
        thirtyWritten += QStringLiteral("line 19") + QStringLiteral(" <<<<<").repeated(marks);
    QTest::newRow("comment of 30 lines")
        << "a.jpg @COMMENT=<<<<<" + thirty.join("<<<<<") + " ENDCOMMENT"
        << "a.jpg||9999|" + thirtyRead + "|"
        << "a.jpg @COMMENT=" + thirtyWritten + " ENDCOMMENT";

    QString items = QStringLiteral("a.jpg");
    for (int i = 1; i <= 200; ++i)
        items += QStringLiteral(" @DELAY=%1 ENDDELAY").arg(i);
    QTest::newRow("200 items: the last wins") << items << "a.jpg||200||"
                                              << "a.jpg @DELAY=200 ENDDELAY";
    QTest::newRow("200 @ inside a comment")
        << "a.jpg @COMMENT=<<<<<" + QString(200, '@') + " ENDCOMMENT @WITH=b.wav ENDWITH"
        << "a.jpg|b.wav|9999|<<<<<\r\n" + QString(200, '@') + "|"
        << "a.jpg @WITH=b.wav ENDWITH @COMMENT=<<<<<" + QString(200, '@') + " ENDCOMMENT";
    QTest::newRow("200 @ and no =")
        << "a.jpg " + QString(200, '@') << "a.jpg " + QString(200, '@') + "||9999||"
        << "a.jpg " + QString(200, '@');
    QTest::newRow("200 empty words") << "a.jpg " + QString("@=").repeated(100) << "a.jpg||9999||"
                                     << "a.jpg";
}

void TestEditBadInput::oddLines()
{
    EditorFixture f;
    f.setEnglish(true);
    f.read(FETCH(QString, line));
    QCOMPARE(f.row(1), FETCH(QString, row));
    f.editor.ArrayToStanderdFile();
    QCOMPARE(f.tempText(), FETCH(QString, written) + QStringLiteral("\r\n"));
}

void TestEditBadInput::collidingWords_data()
{
    QTest::addColumn<QString>("commandList");
    QTest::addColumn<bool>("english");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("written");
    QTest::newRow("two start words alike: the first item kind wins")
        << "WITH = X\r\nDELAY = X\r\nENDWITH = Y\r\nENDDELAY = Y\r\n"
        << false << "a.jpg @X=5 Y"
        << "a.jpg|5|9999||"
        << "a.jpg @X=5 Y";
    QTest::newRow("two option words alike: the first slot wins in English")
        << "STOPSOUND = Z\r\nPICTURESCROLL = Z\r\n"
        << true << "a.jpg @OPTION=Z ENDOPTION"
        << "a.jpg||9999||Z"
        << "a.jpg @OPTION=STOPSOUND ENDOPTION";
    QTest::newRow("and both English words go out alike in user mode")
        << "STOPSOUND = Z\r\nPICTURESCROLL = Z\r\n"
        << false << "a.jpg @OPTION=PICTURESCROLL ENDOPTION"
        << "a.jpg||9999||PICTURESCROLL"
        << "a.jpg @OPTION=Z ENDOPTION";
    QTest::newRow("a start word that is an end word") << "WITH = DES\r\nENDWITH = DES\r\n"
                                                      << false << "a.jpg @DES=b.wav DES"
                                                      << "a.jpg|b.wav|9999||"
                                                      << "a.jpg @DES=b.wav DES";
}

void TestEditBadInput::collidingWords()
{
    EditorFixture f;
    f.home.writeFile(kCommandListFile, FETCH(QString, commandList).toUtf8());
    f.setEnglish(FETCH(bool, english));
    f.read(FETCH(QString, line));
    QCOMPARE(f.row(1), FETCH(QString, row));
    f.editor.ArrayToStanderdFile();
    QCOMPARE(f.tempText(), FETCH(QString, written) + QStringLiteral("\r\n"));
}

void TestEditBadInput::tempFileCannotBeWritten()
{
    EditorFixture f;
    f.setEnglish(true);
    f.read(QStringLiteral("a.jpg\r\nb.jpg"));
    f.state.EditRow = 1;
    f.editor.CommandAdd(EditItem::Delay, QStringLiteral("5"));
    // A folder stands where the working file goes.
    f.editor.deleteTempFile();
    f.home.makeFolder(kTempFile);
    f.ui.boxes.clear();
    const QString text = f.editor.CommandUpdate();
    QCOMPARE(f.ui.boxes.size(), 1);
    QVERIFY(f.ui.boxes[0].contains(QLatin1String("TempFile.txt")));
    QCOMPARE(f.rows(), (QStringList{"a.jpg||9999||", "b.jpg||5||"})); // nothing lost
    QVERIFY(text.contains(QLatin1String("b.jpg @DELAY=5 ENDDELAY")));
    // Nor is a standard text taken into the editor through an old file.
    f.state.EditorOn = false;
    QVERIFY(!f.editor.TextConvertToEditorText(QStringLiteral("c.jpg")));
    QVERIFY(!f.state.EditorOn);
    QCOMPARE(f.rows(), (QStringList{"a.jpg||9999||", "b.jpg||5||"}));
}

QTEST_GUILESS_MAIN(TestEditBadInput)
#include "tst_EditBadInput.moc"
