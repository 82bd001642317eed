// The pop-ups of the selection window (FormRClick3 on the file box with its
// one-step undo, FormRClick2 on the folder box) and FormGiveFilter, the
// search of the loaded list.
#include "SelectFixture.h"

#include "select/FormGiveFilter.h"
#include "support/Fetch.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

const QString kUndoCopy = u"Lumentas/ForProgramRun_KDR/DelTempF.jpg"_s;
const QString kUndoRecord = u"Lumentas/ForProgramRun_KDR/DelTempFName.txt"_s;

FormRClick3* rclick3(SelectFixture& f)
{
    auto* popup = static_cast<FormRClick3*>(f.forms.form(QStringLiteral("FormRClick3")));
    popup->load();
    return popup;
}

} // namespace

class TestFormSelectPopups : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void deleteAndRecover_data();
    void deleteAndRecover();
    void deleteAll_data();
    void deleteAll();
    void viewAtOnce();
    void folderPopup_data();
    void folderPopup();
    void giveFilter_data();
    void giveFilter();
};

void TestFormSelectPopups::deleteAndRecover_data()
{
    // Steps: "del <name>" (the name clicked, then CommandDel1), "recover",
    // "record <line>" (DelTempFName.txt written as given), "new <name>" (a
    // file made).
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<QStringList>("present"); // under C:\pics afterwards
    QTest::addColumn<bool>("undoLeft");       // the copy and the record are still there
    const QStringList all{"notes.txt", "tall.png", "wide.jpg", "x.png @WITH=y.wav ENDWITH"};
    QTest::newRow("deleted, the copy kept")
        << QStringList{"del wide.jpg"}
        << QStringList{"notes.txt", "tall.png", "x.png @WITH=y.wav ENDWITH"} << true;
    QTest::newRow("deleted and put back") << QStringList{"del wide.jpg", "recover"} << all << false;
    QTest::newRow("two deletions: only the last comes back")
        << QStringList{"del wide.jpg", "del tall.png", "recover"}
        << QStringList{"notes.txt", "tall.png", "x.png @WITH=y.wav ENDWITH"} << false;
    QTest::newRow("a record written copy first, as the main window writes it")
        << QStringList{"del wide.jpg",
                       "record C:\\Lumentas\\ForProgramRun_KDR\\DelTempF.jpg,C:\\pics\\wide.jpg",
                       "recover"}
        << all << false;
    QTest::newRow("a name without a dot gets no copy and stays")
        << QStringList{"new README", "del README"}
        << QStringList{"notes.txt", "README", "tall.png", "wide.jpg", "x.png @WITH=y.wav ENDWITH"}
        << false;
    QTest::newRow("a copy that can't go back stays")
        << QStringList{"del wide.jpg",
                       "record "
                       "C:\\pics\\notes.txt\\w.jpg,C:\\Lumentas\\ForProgramRun_KDR\\DelTempF.jpg",
                       "recover"}
        << QStringList{"notes.txt", "tall.png", "x.png @WITH=y.wav ENDWITH"} << true;
}

void TestFormSelectPopups::deleteAndRecover()
{
    SelectFixture f;
    const QByteArray wide = f.home.readFile("pics/wide.jpg");
    FormRClick3* popup = rclick3(f);
    for (const QString& step : FETCH(QStringList, steps)) {
        if (step.startsWith(u"del ")) {
            f.clickFile(step.mid(4));
            popup->CommandDel1->click();
        } else if (step.startsWith(u"new ")) {
            f.home.writeFile("pics/" + step.mid(4), "x");
            f.select->File1->refresh();
        } else if (step.startsWith(u"record ")) {
            f.home.writeFile(kUndoRecord, step.mid(7).toLatin1() + "\r\n");
        } else {
            popup->CommandRecover->click();
        }
    }
    QCOMPARE(f.fileRows(), FETCH(QStringList, present));
    QCOMPARE(f.home.exists(kUndoRecord), FETCH(bool, undoLeft));
    if (f.fileRows().contains(u"wide.jpg"_s))
        QCOMPARE(f.home.readFile("pics/wide.jpg"), wide);
    if (QByteArray(QTest::currentDataTag()) == "deleted, the copy kept") {
        QCOMPARE(f.home.readFile(kUndoCopy), wide);
        QCOMPARE(
            f.home.readFile(kUndoRecord),
            QByteArray("C:\\pics\\wide.jpg,C:\\Lumentas\\ForProgramRun_KDR\\DelTempF.jpg\r\n"));
    }
}

void TestFormSelectPopups::deleteAll_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QStringList>("present");
    // Only what the box shows goes: here the pictures of the JPG box.
    QTest::newRow("Yes: the files shown go")
        << kAnswerYes << QStringList{"notes.txt", "tall.png", "x.png @WITH=y.wav ENDWITH"};
    QTest::newRow("No: nothing goes") << kAnswerNo
                                      << QStringList{"notes.txt", "second.JPG", "tall.png",
                                                     "wide.jpg", "x.png @WITH=y.wav ENDWITH"};
}

void TestFormSelectPopups::deleteAll()
{
    SelectFixture f;
    f.home.writeFile("pics/second.JPG", "x");
    f.click("Check1_0");
    f.ui.answers.enqueue(FETCH(int, answer));
    rclick3(f)->CommandDelAll->click();
    QCOMPARE(f.ui.questions,
             QStringList{u"ここにある全てのﾌｧｲﾙが消え復元できません。続けますか？"_s});
    f.click("CheckANY");
    QCOMPARE(f.fileRows(), FETCH(QStringList, present));
}

void TestFormSelectPopups::viewAtOnce()
{
    SelectFixture f;
    FormRClick3* popup = rclick3(f);
    popup->CommandOpen->click();
    QCOMPARE(f.ui.boxes, QStringList{u"対象となるファイルが選択されていません"_s});
    QVERIFY(f.calls.isEmpty());

    f.clickFile("tall.png");
    popup->CommandOpen->click();
    QCOMPARE(f.home.readFile("Lumentas/TempList.lst"), QByteArray("C:\\pics\\tall.png\r\n"));
    QCOMPARE(f.calls, (QStringList{"show main", "clear []", "open C:\\Lumentas\\TempList.lst"}));
    QVERIFY(!f.select->isVisible()); // the main window comes in its place
}

void TestFormSelectPopups::folderPopup_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("word");
    QTest::addColumn<bool>("notInclude");
    QTest::addColumn<QString>("text");    // Text1 afterwards
    QTest::addColumn<QByteArray>("list"); // TempList.lst, empty when none is written
    const QString old = u"C:\\old.jpg\r\n"_s;
    const QString tree = underPics(
        {"notes.txt", "tall.png", "wide.jpg", "a\\one.jpg", "b\\two.txt", "a\\deep\\three.jpg"});
    QTest::newRow("all, chosen") << "CommandSelectAll"
                                 << "" << false << old + kTree << QByteArray();
    QTest::newRow("word, chosen: folder names count")
        << "CommandCheckAndSelect"
        << "DEEP" << false << old + underPics({"a\\deep\\three.jpg"}) << QByteArray();
    QTest::newRow("word left out, seen at once")
        << "CommandCheckAndSee"
        << "a\\" << true << old + underPics({"notes.txt", "tall.png", "wide.jpg", "b\\two.txt"})
        << QByteArray("C:\\pics\\notes.txt\r\nC:\\pics\\tall.png\r\nC:\\pics\\wide.jpg\r\n"
                      "C:\\pics\\b\\two.txt\r\n");
    QTest::newRow("nothing found: nothing shown") << "CommandCheckAndSee"
                                                  << "zzz" << false << old << QByteArray();
}

void TestFormSelectPopups::folderPopup()
{
    SelectFixture f;
    auto* popup = static_cast<FormRClick2*>(f.forms.form(QStringLiteral("FormRClick2")));
    popup->load();
    popup->TextSerchWord->setText(FETCH(QString, word));
    popup->CheckNotInclude->setChecked(FETCH(bool, notInclude));
    popup->findChild<QPushButton*>(FETCH(QString, button))->click();
    QCOMPARE(f.text(), FETCH(QString, text));
    QFETCH(QByteArray, list);
    QCOMPARE(f.home.readFile("Lumentas/TempList.lst"), list);
    const QStringList shown{"show main", "clear []", "open C:\\Lumentas\\TempList.lst"};
    QCOMPARE(f.calls, list.isEmpty() ? QStringList() : shown);
}

void TestFormSelectPopups::giveFilter_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("row"); // 0: not found
    QTest::addColumn<QString>("caption");
    QTest::newRow("from the top") << "CommandFined"
                                  << " moon " << 2 << "Got";
    QTest::newRow("onwards from page 2") << "CommandNext"
                                         << "sun" << 4 << "Got";
    QTest::newRow("back from page 2") << "CommandBack"
                                      << "SUN" << 1 << "Got";
    QTest::newRow("not there: the page stays") << "CommandNext"
                                               << "star" << 0 << "Not Found";
}

void TestFormSelectPopups::giveFilter()
{
    BasicsFixture f;
    f.state.ListArray.redim(5, 6);
    const QStringList mains{
        "", "C:\\a\\sun.jpg", "C:\\b\\moon.png", "C:\\c\\sea.jpg", "C:\\d\\SUNSET.jpg", ""};
    for (int row = 0; row < mains.size(); ++row)
        f.state.ListArray.set(0, row, mains.at(row));
    FormGiveFilter form(f.basics);
    QStringList calls;
    form.links.currentPage = [] { return 2; };
    form.links.pageCount = [] { return 4; };
    form.links.setPageBar = [&](int page) { calls << QStringLiteral("bar %1").arg(page); };
    form.links.pageBarChange = [&] { calls << QStringLiteral("change"); };
    form.links.takeMainAction = [&] { calls << QStringLiteral("show"); };
    form.load();
    QCOMPARE(form.windowTitle(), u" ﾜｰﾄﾞによるﾌｧｲﾙ検出 "_s);
    form.TextFilter->setText(FETCH(QString, word));
    form.findChild<QPushButton*>(FETCH(QString, button))->click();
    QCOMPARE(form.windowTitle(), FETCH(QString, caption));
    QCOMPARE(f.ui.beeps, 1);
    QFETCH(int, row);
    QStringList expected;
    if (row > 0) {
        expected << QStringLiteral("bar %1").arg(row);
        if (FETCH(QString, button) == u"CommandFined")
            expected << QStringLiteral("change");
        expected << QStringLiteral("show");
    }
    QCOMPARE(calls, expected);
}

QTEST_MAIN(TestFormSelectPopups)
#include "tst_FormSelectPopups.moc"
