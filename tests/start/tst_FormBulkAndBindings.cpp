// The windows of bulk work, entry and bindings in the whole program over the
// fakes: FormFileOption opened from the main window walks the list on show
// page by page; FormEdit stands beside the show and paging hides its frames;
// a fresh machine gives every binding of FormEdit2 a real program;
// CommandClear makes the next start a first start; and no button of any
// window waits as "準備中".
#include "editor/FormEdit.h"
#include "fileops/FormFileOption.h"
#include "list/CommandWords.h"
#include "platform/FileBoxes.h"
#include "platform/FormBase.h"
#include "platform/Launcher.h"
#include "settings/FormEdit2.h"
#include "settings/FormSetAccessDirectry.h"
#include "settings/FormViewerSelect.h"
#include "show/FormMain.h"
#include "start/AppFixture.h"
#include "start/Lumenta.h"
#include "support/FakeMedia.h"
#include "support/FakeSystemBin.h"
#include "support/Fakes.h"
#include "support/TestHome.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QHash>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QTest>

#include <memory>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

const QString kRun = u"Lumentas/ForProgramRun_KDR/"_s;

} // namespace

class TestFormBulkAndBindings : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fileOptionWalksTheListOnShow();
    void entryWindowBesideTheShow();
    void freshMachineGivesEveryBindingAProgram();
    void clearMakesTheNextStartAFirstStart();
    void noButtonWaitsAsNotReady();
};

void TestFormBulkAndBindings::fileOptionWalksTheListOnShow()
{
    App a;
    a.openList({a.home.picture("pics/p1.png"), a.home.picture("pics/p2.png"),
                a.home.picture("pics/p3.png")});
    a.home.makeFolder("Out");
    a.main().CommandFileOption->click();
    auto* bulk = a.form<FormFileOption>("FormFileOption");
    QVERIFY(bulk->isVisible());
    bulk->Dir1->setPath(u"C:\\Out"_s);
    bulk->OptionAutoRename->click();
    bulk->TextFileName->setCurrentText(u"show"_s);
    bulk->TextNom->setText(u"1"_s);
    bulk->OptionConfirm->click();
    // Each file waits with its page on show: OK, skip, OK.
    QStringList shownPages;
    QList<QPushButton*> script{bulk->CommandOK, bulk->CommandSkip, bulk->CommandOK};
    a.clock.onWait = [&](qint64 length) {
        const BulkWalk& walk = bulk->walk();
        if (length != qint64(BulkWalk::kAnswerPollMs) || script.isEmpty() || walk.AnswerOK ||
            walk.AnswerSkip)
            return;
        shownPages << a.main().TextCount->text() + u' ' + a.main().TextFileName->text();
        QPushButton* next = script.takeFirst();
        QMetaObject::invokeMethod(
            next, [next] { next->click(); }, Qt::QueuedConnection);
    };
    bulk->CommandDo->click();
    QCOMPARE(shownPages, (QStringList{u"1 C:\\pics\\p1.png"_s, u"2 C:\\pics\\p2.png"_s,
                                      u"3 C:\\pics\\p3.png"_s}));
    QCOMPARE(QDir(a.home.native("Out")).entryList(QDir::Files),
             (QStringList{u"show001.png"_s, u"show002.png"_s}));
    QCOMPARE(a.home.readFile("Out/show002.png"), a.home.readFile("pics/p3.png"));
}

void TestFormBulkAndBindings::entryWindowBesideTheShow()
{
    App a;
    a.openList({a.home.picture("pics/p1.png"), a.home.picture("pics/p2.png")});
    a.main().move(0, 0);
    a.main().CommandEdit->click();
    auto* edit = a.form<FormEdit>("FormEdit");
    QVERIFY(edit->isVisible());
    const QRect beside = edit->frameGeometry();
    QVERIFY(beside.x() >= a.main().frameGeometry().right() + 1 - beside.width());

    // The comment's work shows the notice in the comment window.
    edit->CommandNotePad->click();
    QVERIFY(edit->FrameSave->isVisible());
    QVERIFY(a.shown("FormComment"));
    QCOMPARE(a.main().TextFileName->text(), u"C:\\pics\\p1.png"_s);

    // Its program out of reach: FormEdit2's comment button sets it up.
    a.app->state().DirecData.CommentEditorPath = u"C:\\nowhere\\notepad.exe"_s;
    const QString editor = a.home.writeFile("bin/editor", "#!/bin/sh\n");
    QFile::setPermissions(editor, QFile::ReadOwner | QFile::ExeOwner);
    a.ui.fileNames << editor;
    edit->CommandOpenEdit->click();
    QCOMPARE(FixedText(a.app->state().DirecData.CommentEditorPath), u"C:\\bin\\editor"_s);
    QCOMPARE(a.launcher.commandLines,
             QStringList{u"C:\\bin\\editor C:\\Lumentas\\ForProgramRun_KDR\\TextTemp.txt"_s});

    // Paging hides the entry frames.
    edit->CommandWaitTime->click();
    QVERIFY(edit->FrameAddDelay->isVisible());
    a.main().CommandRight->click();
    QCOMPARE(a.main().TextCount->text(), u"2"_s);
    QVERIFY(!edit->FrameSave->isVisible() && !edit->FrameAddDelay->isVisible());
}

void TestFormBulkAndBindings::freshMachineGivesEveryBindingAProgram()
{
    App a({}, false);
    FakeSystemBin bin(a.home.fs);
    const QString opener = bin.add(u"xdg-open"_s); // all a bare machine has
    a.app->Main();
    auto* access = a.form<FormSetAccessDirectry>("FormSetAccessDirectry");
    QVERIFY(access->CommandExit->isEnabled()); // every row blue
    access->CommandExit->click();
    QVERIFY(a.shown("FormMain"));

    a.app->state().SelectedFile = u"C:\\pics\\a.jpg"_s;
    auto* edit2 = a.form<FormEdit2>("FormEdit2");
    edit2->showForm();
    for (QPushButton* button :
         {edit2->CommandMsPaint, edit2->CommandNotePad, edit2->CommandSoundPlayer,
          edit2->CommandText, edit2->CommandAVI, edit2->CommandMidi, edit2->CommandIntExp})
        button->click();
    edit2->CommandCyberView->click();
    auto* viewers = a.form<FormViewerSelect>("FormViewerSelect");
    viewers->CommandWRLViewer->click();
    viewers->CommandCyberViewer->click();
    QCOMPARE(a.launcher.commandLines.size(), 9);
    for (const QString& line : std::as_const(a.launcher.commandLines)) {
        const auto argv = splitCommandLine(line, a.home.fs);
        QVERIFY2(argv, qPrintable(line));
        QCOMPARE(*argv, (QStringList{opener, a.home.native("pics/a.jpg")}));
    }
}

void TestFormBulkAndBindings::clearMakesTheNextStartAFirstStart()
{
    App a;
    a.app->Main();
    for (const char* name : {"CommandList.txt", "ExtType.dat", "SendToList.txt",
                             "AccessLockDir.dat", "AccessPass.dat", "PictureSizeAllowVal.dat"})
        QVERIFY2(a.home.exists(kRun + QString::fromLatin1(name)), name);
    auto* edit2 = a.form<FormEdit2>("FormEdit2");
    edit2->showForm();
    edit2->CommandClear->click();
    QVERIFY(a.app->ended());
    QTRY_COMPARE(a.quits, 1);
    QVERIFY(
        QDir(a.home.native(kRun))
            .entryList({u"*.ran"_s, u"*.txt"_s, u"*.dat"_s})
            .filter(QRegularExpression(u"^(DirecData|CommandList|ExtType|SendToList|AccessLockDir|"
                                       u"AccessPass|PictureSizeAllowVal)\\."_s))
            .isEmpty());

    // The next start is a first start, and makes them anew.
    a.clock.setEnding(false);
    a.start();
    a.app->Main();
    QVERIFY(a.shown("FormSetAccessDirectry"));
    QVERIFY(!a.shown("FormMain"));
    auto* access = a.form<FormSetAccessDirectry>("FormSetAccessDirectry");
    access->CommandExit->setEnabled(true);
    access->CommandExit->click();
    QVERIFY(a.shown("FormMain"));
    QCOMPARE(a.home.readFile(kRun + u"DirecData.ran"_s).size(), 1547);
    for (const char* name : {"CommandList.txt", "ExtType.dat", "SendToList.txt",
                             "AccessLockDir.dat", "AccessPass.dat", "PictureSizeAllowVal.dat"})
        QVERIFY2(a.home.exists(kRun + QString::fromLatin1(name)), name);
}

// Every window the program registers is made and loaded, and every button
// of it looked at: none is left disabled or marked as waiting for later
// work. The buttons that the windows' own rules keep disabled until their
// time are named.
void TestFormBulkAndBindings::noButtonWaitsAsNotReady()
{
    App a;
    a.app->Main();
    const QStringList byDesign = {
        u"FormFileOption.CommandOK"_s,
        u"FormFileOption.CommandSkip"_s, // answers of a run
        u"FormFileOption.CommandCancel"_s,
        u"FormFileOption.CommandBack"_s,
        u"FormModPic.CommandDoSpline"_s,
        u"FormModPic.CommandStopDrawLine"_s,    // while drawing
        u"FormSetAccessDirectry.CommandExit"_s, // until every program is found
        u"FormCDMusic.Prev"_s,
        u"FormCDMusic.Next"_s,
        u"FormCDMusic.Play"_s, // with a disc
        u"FormCDMusic.Pause"_s,
        u"FormCDMusic.Stop"_s,
    };
    // Buttons of the selection window that open windows of the list editor,
    // which come with its own work.
    const QHash<QString, QString> awaited = {
        {u"FormSelectFile.CommandEditCommand1"_s, u"FormEditText"_s},
        {u"FormSelectFile.CommandReplaceEditor"_s, u"FormReplaceEdit"_s},
        {u"FormSelectFile.CommandExtSet"_s, u"FormWordSet"_s},
        {u"FormSelectFile.CommandWordSet"_s, u"FormWordSet"_s},
    };
    QStringList waiting;
    QStringList names = Lumenta::unloadOrder();
    names << u"FormMain"_s << u"FormOmake"_s;
    QStringList missing;
    QStringList disabled;
    for (const QString& name : std::as_const(names)) {
        if (!a.app->forms().knows(name)) {
            missing << name;
            continue;
        }
        FormBase* form = a.app->forms().form(name);
        QVERIFY2(form, qPrintable(name));
        form->load();
        for (QAbstractButton* button : form->findChildren<QAbstractButton*>()) {
            if (button->window() != form)
                continue; // a window of its own, looked at under its name
            const QString id = name + u'.' + button->objectName();
            const bool notReady =
                button->text().contains(u"準備中"_s) || button->toolTip().contains(u"準備中"_s);
            if (notReady && !a.app->forms().knows(awaited.value(id, name)))
                waiting << id + u" (" + awaited.value(id) + u')';
            else if (notReady)
                QFAIL(qPrintable(id + u" waits as not ready"_s));
            else if (!button->isEnabled())
                disabled << id;
        }
    }
    for (const QString& id : std::as_const(disabled))
        QVERIFY2(byDesign.contains(id), qPrintable(id + u" is disabled"_s));
    // Windows of work that hasn't landed yet (the list editor's windows, the
    // selection); FormMessage is the floating hint of the dialogs service.
    const QStringList notYet = {u"FormSelectFile"_s,  u"FormEditText"_s,   u"FormMessage"_s,
                                u"FormReplaceEdit"_s, u"FormGiveFilter"_s, u"FormWordSet"_s,
                                u"FormSetCommand"_s,  u"FormRClick2"_s,    u"FormRClick3"_s};
    for (const QString& name : std::as_const(missing))
        QVERIFY2(notYet.contains(name), qPrintable(name + u" is not registered"_s));
    if (!missing.isEmpty())
        qInfo("Windows not in the program yet: %s", qPrintable(missing.join(u", "_s)));
    if (!waiting.isEmpty())
        qInfo("Buttons waiting for them: %s", qPrintable(waiting.join(u", "_s)));
}

QTEST_MAIN(TestFormBulkAndBindings)
#include "tst_FormBulkAndBindings.moc"
