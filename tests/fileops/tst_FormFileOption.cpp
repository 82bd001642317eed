// FormFileOption over a list and files made by the test, with the main
// window stood in for by links: every kind of run on the disk with its
// question, the confirmed walk answered by posted clicks, the safety of
// copies, and the target folder's two buttons.
#include "fileops/FormFileOption.h"

#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "platform/FormRegistry.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/FileSizeLimit.h"
#include "support/Shots.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <functional>
#include <memory>
#include <optional>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

// The list: three pictures in C:\src, a blank row between the second and
// the third. The pictures hold "a", "b" and "c".
struct Bulk : BasicsFixture {
    FormRegistry forms;
    FormFileOption* window = new FormFileOption(basics, forms);
    QList<int> pagesShown;
    QString mainFile = u"C:\\src\\Sea_A.JPG"_s;

    Bulk()
    {
        forms.add(u"FormFileOption"_s, [this] { return window; });
        home.writeFile("src/Sea_A.JPG", "a");
        home.writeFile("src/sea_b.png", "b");
        home.writeFile("src/Hill.jpg", "c");
        home.makeFolder("Out");
        state.ListArray.redim(kListColumns, 5);
        state.ListArray.set(kColMain, 1, u"C:\\src\\Sea_A.JPG"_s);
        state.ListArray.set(kColMain, 2, u" C:\\src\\sea_b.png "_s);
        state.ListArray.set(kColMain, 4, u"C:\\src\\Hill.jpg"_s);
        window->links.mainFileName = [this] { return mainFile; };
        window->links.listTotal = [] { return u"4"_s; };
        window->links.takeMainAction = [this] { pagesShown << state.PicNo; };
        window->showForm();
        window->Dir1->setPath(u"C:\\Out"_s);
    }
    QStringList filesIn(const char* folder) const
    {
        return QDir(home.native(QString::fromLatin1(folder))).entryList(QDir::Files, QDir::Name);
    }
    QByteArray bytes(const QString& file) const { return home.readFile(file); }

    // Answers each file of a confirmed run with the next step of the
    // script, posted through the event queue while the walk waits; a run
    // that asks more than the script holds is cancelled and noted.
    bool ranOut = false;
    void answer(QList<std::function<void()>> script)
    {
        auto posted = std::make_shared<bool>(false);
        clock.onWait = [this, script, posted](qint64 length) mutable {
            const BulkWalk& walk = window->walk();
            const bool answered =
                walk.AnswerOK || walk.AnswerSkip || walk.AnswerBack || walk.AnswerCancel;
            if (length != qint64(BulkWalk::kAnswerPollMs) || *posted || answered)
                return;
            std::function<void()> step = [this] { window->CommandCancel->click(); };
            if (script.isEmpty())
                ranOut = true;
            else
                step = script.takeFirst();
            *posted = true;
            QMetaObject::invokeMethod(
                window,
                [step, posted] {
                    *posted = false;
                    step();
                },
                Qt::QueuedConnection);
        };
    }
    void answer(const QList<QPushButton*>& buttons)
    {
        QList<std::function<void()>> script;
        for (QPushButton* button : buttons)
            script << [button] { button->click(); };
        answer(script);
    }
};

} // namespace

class TestFormFileOption : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyKindOfRun_data();
    void everyKindOfRun();
    void noListNoRun();
    void noAnswerNoRun();
    void confirmedWalk_data();
    void confirmedWalk();
    void resetTakesTheNumberTyped();
    void copiesLoseNothing_data();
    void copiesLoseNothing();
    void targetFolderButtons();
    void optionsShowWhatApplies();
};

void TestFormFileOption::everyKindOfRun_data()
{
    QTest::addColumn<QString>("scope");  // "all" or "select"
    QTest::addColumn<QString>("kind");   // "copy", "numbered", "replace", "delete"
    QTest::addColumn<bool>("lowerCase"); // CheckChangeChara
    QTest::addColumn<QString>("question");
    QTest::addColumn<QStringList>("out"); // C:\Out afterwards, "name=bytes"
    QTest::addColumn<QStringList>("src"); // C:\src afterwards
    const QStringList all{"Hill.jpg", "Sea_A.JPG", "sea_b.png"};
    const auto row = [&](const char* scope, const char* kind, bool lower, const QString& question,
                         const QStringList& out, const QStringList& src) {
        QTest::addRow("%s %s%s", scope, kind, lower ? ", lower case" : "")
            << QString::fromLatin1(scope) << QString::fromLatin1(kind) << lower << question << out
            << src;
    };
    row("all", "copy", false, u"C:\\Outすべてのファイルをコピーします"_s,
        {"Hill.jpg=c", "Sea_A.JPG=a", "sea_b.png=b"}, all);
    row("all", "copy", true, u"C:\\Outすべてのファイルをコピーします"_s,
        {"hill.jpg=c", "sea_a.jpg=a", "sea_b.png=b"}, all);
    row("select", "copy", false, u"C:\\OutSEA を含むファイルのみコピーします"_s,
        {"Sea_A.JPG=a", "sea_b.png=b"}, all);
    row("select", "copy", true, u"C:\\OutSEA を含むファイルのみコピーします"_s,
        {"sea_a.jpg=a", "sea_b.png=b"}, all);
    const QString numberedAll = u"C:\\Outすべてのファイルをpic に 7 から始まる連続番号を付けて、"
                                u"全ファイルをコピーします"_s;
    row("all", "numbered", false, numberedAll, {"pic007.JPG=a", "pic008.png=b", "pic009.jpg=c"},
        all);
    row("all", "numbered", true, numberedAll, {"pic007.jpg=a", "pic008.png=b", "pic009.jpg=c"},
        all);
    const QString numberedSelect = u"C:\\OutSEA を含むファイルのみ pic に 7 から始まる連続番号を"
                                   u"付けて、全ファイルをコピーします"_s;
    row("select", "numbered", false, numberedSelect, {"pic007.JPG=a", "pic008.png=b"}, all);
    row("select", "numbered", true, numberedSelect, {"pic007.jpg=a", "pic008.png=b"}, all);
    const QString replace =
        u"SEA を Oceanに置き換えてファイルをコピーします(ディレクトリー名は対象としません)"_s;
    row("select", "replace", false, replace, {"Ocean_A.JPG=a", "Ocean_b.png=b"}, all);
    row("select", "replace", true, replace, {"ocean_a.jpg=a", "ocean_b.png=b"}, all);
    row("all", "delete", false, u"すべてのファイルを消去します"_s, {}, {});
    row("all", "delete", true, u"すべてのファイルを消去します"_s, {}, {});
    row("select", "delete", false, u"SEA を含むファイルのみ消去します"_s, {}, {"Hill.jpg"});
    row("select", "delete", true, u"SEA を含むファイルのみ消去します"_s, {}, {"Hill.jpg"});
}

void TestFormFileOption::everyKindOfRun()
{
    Bulk b;
    FormFileOption& w = *b.window;
    QFETCH(QString, kind);
    if (FETCH(QString, scope) == u"select"_s) {
        w.OptionInclude->click();
        w.TextSelect->setText(u"SEA"_s);
    }
    w.CheckChangeChara->setChecked(FETCH(bool, lowerCase));
    w.TextFileName->setCurrentText(u"pic"_s);
    w.TextNom->setText(u"7"_s);
    w.TextReplace->setText(u"Ocean"_s);
    QRadioButton* option = kind == u"copy"_s       ? w.OptionJustCopy
                           : kind == u"numbered"_s ? w.OptionAutoRename
                           : kind == u"replace"_s  ? w.OptionReplace
                                                   : w.OptionDeleate;
    option->click();
    w.OptionDoAll->click();
    w.CommandDo->click();

    QCOMPARE(b.ui.questions, QStringList{FETCH(QString, question)});
    QStringList out;
    for (const QString& name : b.filesIn("Out"))
        out << name + u'=' + QString::fromLatin1(b.bytes(u"Out/"_s + name));
    QCOMPARE(out, FETCH(QStringList, out));
    QCOMPARE(b.filesIn("src"), FETCH(QStringList, src));
    QVERIFY(b.pagesShown.isEmpty()); // run through: no page is shown
    QCOMPARE(w.windowTitle(), QString());
    QCOMPARE(backColor(w.CommandDo), kColorButtonFace);
    QVERIFY(!w.CommandOK->isEnabled());
}

void TestFormFileOption::noListNoRun()
{
    Bulk b;
    b.mainFile.clear();
    b.window->OptionJustCopy->click();
    b.window->CommandDo->click();
    QCOMPARE(b.ui.boxes, QStringList{u"処理の対象となるファイルがないと機能しません"_s});
    QVERIFY(b.filesIn("Out").isEmpty());
}

void TestFormFileOption::noAnswerNoRun()
{
    Bulk b;
    b.window->OptionDeleate->click();
    b.ui.answers << kAnswerNo;
    b.window->CommandDo->click();
    QCOMPARE(b.filesIn("src").size(), 3);
    QCOMPARE(b.ui.beeps, 1); // the cancel's beep
}

void TestFormFileOption::confirmedWalk_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("script"); // O OK, S skip, B back, C cancel
    QTest::addColumn<QList<int>>("pages");
    QTest::addColumn<QStringList>("out");
    // Rows 1, 2 and 4 hold files; row 3 is blank and passed.
    QTest::newRow("OK to every file")
        << "copy"
        << "OOO" << QList<int>{1, 2, 4} << QStringList{"Hill.jpg", "Sea_A.JPG", "sea_b.png"};
    QTest::newRow("a skipped file uses no number")
        << "numbered"
        << "OSO" << QList<int>{1, 2, 4} << QStringList{"pic000.JPG", "pic001.jpg"};
    QTest::newRow("back on row 1 stays on row 1, back on row 2 goes to row 1")
        << "numbered"
        << "BOBOOO" << QList<int>{1, 1, 2, 1, 2, 4}
        << QStringList{"pic000.JPG", "pic001.JPG", "pic002.png", "pic003.jpg"};
    QTest::newRow("cancel ends the run") << "copy"
                                         << "OC" << QList<int>{1, 2} << QStringList{"Sea_A.JPG"};
}

void TestFormFileOption::confirmedWalk()
{
    Bulk b;
    FormFileOption& w = *b.window;
    (FETCH(QString, kind) == u"copy"_s ? w.OptionJustCopy : w.OptionAutoRename)->click();
    w.TextFileName->setCurrentText(u"pic"_s);
    w.TextNom->setText(u"000"_s);
    w.OptionConfirm->click();
    QList<QPushButton*> script;
    for (const QChar c : FETCH(QString, script))
        script << (c == u'O'   ? w.CommandOK
                   : c == u'S' ? w.CommandSkip
                   : c == u'B' ? w.CommandBack
                               : w.CommandCancel);
    b.answer(script);
    w.CommandDo->click();
    QVERIFY(!b.ranOut);
    QCOMPARE(b.pagesShown, FETCH(QList<int>, pages));
    QCOMPARE(b.filesIn("Out"), FETCH(QStringList, out));
    QVERIFY(!w.CommandOK->isEnabled()); // the answers wait for the next run
    saveShot(&w, u"FormFileOption_confirmed"_s);
}

void TestFormFileOption::resetTakesTheNumberTyped()
{
    Bulk b;
    FormFileOption& w = *b.window;
    w.OptionAutoRename->click();
    w.TextFileName->setCurrentText(u"pic"_s);
    w.TextNom->setText(u"1"_s);
    w.OptionConfirm->click();
    // OK on the first file; on the second the user types 50 and presses R,
    // then OK to the rest.
    QString shownAfterReset;
    const auto ok = [&w] { w.CommandOK->click(); };
    b.answer({ok,
              [&] {
                  w.TextNom->setText(u"50"_s);
                  w.CommandReset->click();
                  shownAfterReset = w.TextNew->text();
              },
              ok, ok});
    w.CommandDo->click();
    QCOMPARE(shownAfterReset, u"C:\\Out\\pic050.png"_s);
    QCOMPARE(w.TextNom->text(), u"050"_s);
    QCOMPARE(b.filesIn("Out"), (QStringList{"pic001.JPG", "pic050.png", "pic051.jpg"}));
}

void TestFormFileOption::copiesLoseNothing_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<bool>("diskFull");
    QTest::addColumn<QByteArray>("target"); // Sea_A.JPG in the folder afterwards
    QTest::newRow("into the source's own folder") << "C:\\src" << false << QByteArray(5000, 'a');
    QTest::newRow("into it, the folder in capitals") << "C:\\SRC" << false << QByteArray(5000, 'a');
    QTest::newRow("onto an existing target: replaced")
        << "C:\\Out" << false << QByteArray(5000, 'a');
    QTest::newRow("onto an existing target, disk full: kept")
        << "C:\\Out" << true << QByteArray("old");
}

void TestFormFileOption::copiesLoseNothing()
{
    Bulk b;
    b.home.writeFile("src/Sea_A.JPG", QByteArray(5000, 'a'));
    b.home.writeFile("Out/Sea_A.JPG", "old");
    FormFileOption& w = *b.window;
    w.TextDirectry->setText(FETCH(QString, folder));
    w.OptionJustCopy->click();
    w.OptionDoAll->click();
    {
        std::optional<FileSizeLimit> full;
        if (FETCH(bool, diskFull))
            full.emplace(1000);
        w.CommandDo->click();
    }
    QCOMPARE(b.bytes(u"src/Sea_A.JPG"_s), QByteArray(5000, 'a'));
    QCOMPARE(b.bytes(u"src/sea_b.png"_s), QByteArray("b"));
    const QString folder = FETCH(QString, folder).toLower() == u"c:\\src"_s ? u"src"_s : u"Out"_s;
    QCOMPARE(b.bytes(folder + u"/Sea_A.JPG"_s), FETCH(QByteArray, target));
    const QStringList hidden = QDir(b.home.native(folder)).entryList(QDir::Hidden | QDir::Files);
    QCOMPARE(hidden.filter(u"^\\."_s), QStringList()); // nothing staged is left behind
}

void TestFormFileOption::targetFolderButtons()
{
    Bulk b;
    FormFileOption& w = *b.window;
    w.TextDirectry->setText(u"C:\\Out\\New"_s);
    w.CommandMakeDirectry->click();
    QVERIFY(QFileInfo(b.home.native("Out/New")).isDir());
    QCOMPARE(w.Dir1->path().toUpper(), u"C:\\OUT\\NEW"_s);

    b.home.writeFile("Out/New/x.jpg", "x");
    b.home.writeFile("Out/New/y.jpg", "y");
    w.TextDirectry->setText(u"C:\\Out\\New"_s);
    b.ui.answers << kAnswerNo;
    w.CommandDelDir->click();
    QVERIFY(b.home.exists("Out/New/x.jpg")); // No: nothing goes
    w.CommandDelDir->click();
    QVERIFY(!b.home.exists("Out/New"));
    QCOMPARE(b.ui.questions,
             (QStringList{u"C:\\Out\\New のディレクトリーを作成します。継続しますか？"_s,
                          u"C:\\Out\\New のディレクトリーを消去します。継続しますか？"_s,
                          u"C:\\Out\\New のディレクトリーを消去します。継続しますか？"_s}));
    QCOMPARE(w.TextDirectry->text().toUpper(), u"C:\\OUT"_s);
    QCOMPARE(w.Dir1->path().toUpper(), u"C:\\OUT"_s);
}

void TestFormFileOption::optionsShowWhatApplies()
{
    Bulk b;
    FormFileOption& w = *b.window;
    QCOMPARE(w.windowTitle(),
             u"必要な項目をクリックしてください。送り先はディレクトリーをダブルクリックしてくだ"
             u"さい"_s);
    QVERIFY(w.OptionAll->isChecked());
    QVERIFY(!w.ReplaceLine->isVisible()); // a replace is for the files that hold a word
    w.OptionInclude->click();
    QVERIFY(w.ReplaceLine->isVisible());
    w.OptionReplace->click();
    w.OptionAll->click();
    QVERIFY(!w.ReplaceLine->isVisible());
    QVERIFY(w.OptionJustCopy->isChecked()); // the choice moved away from the replace
    w.OptionDeleate->click();
    QVERIFY(!w.FrameTarget->isVisible());
    w.OptionJustCopy->click();
    QVERIFY(w.FrameTarget->isVisible());
    w.CommandToSmall->click();
    QVERIFY(!w.FrameItem->isVisible() && w.FrameDo->isVisible());
    w.CommandToBig->click();
    QVERIFY(w.FrameItem->isVisible() && w.FrameTarget->isVisible());
    w.CommandScannerWordHelp->click();
    QVERIFY(w.FrameForScanner->isVisible());
    w.CommandClose->click();
    QVERIFY(!w.FrameForScanner->isVisible());
}

QTEST_MAIN(TestFormFileOption)
#include "tst_FormFileOption.moc"
