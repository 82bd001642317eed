// The program through Main, on fakes: the first start, the small settings
// files, the command line and the fixed order of closing; whole-screen mode
// and the navigator, the option words of a page, the font and colour sets,
// and Auto Page on the fake clock.
#include "display/FormComment.h"
#include "display/FormRightLeftNorm.h"
#include "display/MediaPanel.h"
#include "display/PictureBox.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormBase.h"
#include "platform/Twips.h"
#include "settings/FormSetFontAndColor.h"
#include "settings/SendToList.h"
#include "show/FormLumentaExit.h"
#include "show/FormMain.h"
#include "show/FormOption.h"
#include "start/AppFixture.h"
#include "start/Lumenta.h"
#include "support/FakeMedia.h"
#include "support/Fakes.h"
#include "support/Fetch.h"
#include "support/SendToListText.h"
#include "support/Shots.h"
#include "support/TestHome.h"

#include "platform/ClickLabel.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

class TestFormMainStart : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void firstStartShowsOnlyTheAccessWindow();
    void settingsFiles();
    void startWithAListOnTheCommandLine();
    void closingEndsInTheFixedOrder();
    void wholeScreenAndBack_data();
    void wholeScreenAndBack();
    void optionWordsActOnTheirPage_data();
    void optionWordsActOnTheirPage();
    void setStoredByTheWindowIsLoadedByTheOption_data();
    void setStoredByTheWindowIsLoadedByTheOption();
    void autoPage_data();
    void autoPage();
    void autoPageStops_data();
    void autoPageStops();
    void navigatorKeepsThePageOfANewList();
    void keysPageTheShow_data();
    void keysPageTheShow();
    void keysStayWithATextField();
    void closingTheNavigatorEndsWholeScreen();
    void commentWindowOpensOverTheDisplayArea();
    void labelCommentCarriesTheCommentAndIsDragged();
    void frame1HintOnEveryOtherMove();
};

void TestFormMainStart::firstStartShowsOnlyTheAccessWindow()
{
    App a(QStringList(), false);
    a.app->Main();
    QCOMPARE(a.settings("DirecData.ran"), QByteArray()); // created empty
    QCOMPARE(a.settings("StartFromWhere.dat"), QByteArray("C:\\bin\\lumenta.exe\r\n"));
    QVERIFY(a.shown("FormSetAccessDirectry"));
    QVERIFY(!a.shown("FormMain"));
    QVERIFY(a.app->state().InSubMain);

    // Completing it goes on into the normal start without a restart.
    auto* exit =
        a.app->forms().form("FormSetAccessDirectry")->findChild<QPushButton*>("CommandExit");
    exit->setEnabled(true);
    exit->click();
    QVERIFY(a.shown("FormMain"));
    QVERIFY(!a.shown("FormSetAccessDirectry"));
    QVERIFY(!a.app->state().InSubMain);
    QCOMPARE(
        readDirecData(a.home.native("Lumentas/ForProgramRun_KDR/DirecData.ran")).AutoPageInterval,
        qint16(3));
}

void TestFormMainStart::settingsFiles()
{
    App a; // missing: written with their defaults
    a.app->Main();
    QVERIFY(a.shown("FormMain"));
    QCOMPARE(a.settings("PictureSizeAllowVal.dat"), QByteArray("20\r\n"));
    QCOMPARE(a.settings("AccessPass.dat"), QByteArray("C:\\Lumentas\r\n"));
    QCOMPARE(a.settings("AccessLockDir.dat"), QByteArray("C:\\Lumentas\r\n1\r\n"));
    QCOMPARE(a.app->state().DirectryLock, 0); // the box stays as designed on the default path
    QCOMPARE(a.settings("SendToList.txt"),
             text::encodeForFile(expectedSendToListLines().join("\r\n") + "\r\n"));

    App b;
    b.home.writeFile("Lumentas/ForProgramRun_KDR/PictureSizeAllowVal.dat", "35\r\n");
    b.home.writeFile("Lumentas/ForProgramRun_KDR/AccessPass.dat", "C:\\shows\r\n");
    b.home.writeFile("Lumentas/ForProgramRun_KDR/AccessLockDir.dat", "C:\\locked\r\n1\r\n");
    b.app->Main();
    QCOMPARE(b.app->state().PictureSizeAllowVal, 35);
    QCOMPARE(b.app->state().AccessPassDir, u"C:\\shows"_s);
    QCOMPARE(b.app->state().AccessLockDir, u"C:\\locked"_s);
    QCOMPARE(b.app->state().DirectryLock, 1);
}

void TestFormMainStart::startWithAListOnTheCommandLine()
{
    App a({u"my pics/a.jpg"_s, u"my pics/b.jpg"_s});
    a.home.writeFile("my pics/a.jpg", "x");
    a.home.writeFile("my pics/b.jpg", "x");
    a.main().CheckQuiCkWork->setChecked(true);
    a.app->Main();
    QCOMPARE(a.main().TextTotal->text(), u"2"_s);
    QCOMPARE(a.main().TextFileName->text(), u"C:\\my pics\\a.jpg"_s);
    QVERIFY(a.main().CheckUseCyberView->isChecked());
    QVERIFY(a.app->state().ListReady);
}

void TestFormMainStart::closingEndsInTheFixedOrder()
{
    App a;
    QStringList unloaded;
    for (const QString& name : {u"FormSetAccessDirectry"_s, u"FormHatenaDrive"_s}) {
        FormBase* form = a.app->forms().form(name);
        QObject::connect(form, &FormBase::unloaded, form, [&unloaded, name] { unloaded << name; });
        form->load();
    }
    a.app->Main();
    a.main().CheckOriginalSize->setChecked(true);
    a.main().CommandExit->click();
    // The record first, then the windows in their order, then the end.
    QCOMPARE(a.settings("DirecData.ran").size(), 1547);
    const DirecDataRecord saved =
        readDirecData(a.home.native("Lumentas/ForProgramRun_KDR/DirecData.ran"));
    QCOMPARE(saved.OriginalSizeOn, kTrue);
    QCOMPARE(saved.CyberViewOn, kFalse);
    QCOMPARE(unloaded, (QStringList{"FormSetAccessDirectry", "FormHatenaDrive"}));
    QVERIFY(a.app->ended());
    QTRY_COMPARE(a.quits, 1);
    QVERIFY(a.clock.ending());
    QVERIFY(!a.shown("FormMain"));
}

void TestFormMainStart::wholeScreenAndBack_data()
{
    QTest::addColumn<QRect>("stored"); // the normal rectangle in twips; empty: as it was
    QTest::addColumn<QRect>("result"); // in twips
    QTest::newRow("back where it was") << QRect() << QRect();
    QTest::newRow("a small one snaps to 12000 by 8500")
        << QRect(0, 300, 9000, 6000) << QRect(0, 300, 12000, 8500);
    QTest::newRow("a left beyond the screen comes back to 0")
        << QRect(20000, 300, 12000, 8500) << QRect(0, 300, 12000, 8500);
}

void TestFormMainStart::wholeScreenAndBack()
{
    App a;
    a.openList(
        {a.home.picture("p1.png"), a.home.picture("p2.png"), a.home.picture("p3.png", 900, 700)});
    FormMain& main = a.main();
    main.move(0, 15);
    const QRect normal = main.frameGeometry();

    // The first FILL has no rectangle of its own: it takes the screen.
    main.CommandFull->click();
    QCOMPARE(main.frameGeometry(), QGuiApplication::primaryScreen()->geometry());
    QVERIFY(main.FillMode && !main.Frame1->isVisible() && !main.Frame2->isVisible());
    auto* navigator = a.form<FormRightLeftNorm>("FormRightLeftNorm");
    QVERIFY(navigator->isVisible());
    QVERIFY(navigator->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    QCOMPARE(navigator->windowTitle(), u"メインビュウワ(1/3)"_s);

    // The navigator's arrows and its bar turn the pages.
    navigator->CommandRight->click();
    QCOMPARE(navigator->HScroll1->value(), 2);
    navigator->HScroll1->setValue(3);
    QCOMPARE(main.TextCount->text(), u"3"_s);
    QCOMPARE(a.app->state().PicNo, qint16(3));
    QVERIFY(main.Picture3->isVisible()); // fitted to the whole window
    saveShot(navigator, u"FormRightLeftNorm"_s);

    QFETCH(QRect, stored);
    if (!stored.isNull()) {
        main.NormalWindowLeft = stored.x();
        main.NormalWindowTop = stored.y();
        main.NormalWindowWidth = stored.width();
        main.NormalWindowHeight = stored.height();
    }
    // Closing the window is refused; the exit choice takes it back to normal.
    bool exitShown = false;
    QTimer::singleShot(0, &main, [&] {
        exitShown = a.shown("FormLumentaExit");
        a.form<FormLumentaExit>("FormLumentaExit")->CommandMainNormDisp->click();
    });
    main.close();
    QVERIFY(exitShown);
    QVERIFY(main.isVisible() && main.Frame1->isVisible());
    const QRect tw = FETCH(QRect, result);
    QCOMPARE(main.frameGeometry(),
             tw.isNull() ? normal
                         : QRect(twipsToPixels(tw.x()), twipsToPixels(tw.y()),
                                 twipsToPixels(tw.width()), twipsToPixels(tw.height())));
    QVERIFY(!navigator->isVisible());
    QCOMPARE(QSize(main.FillWindowWidth, main.FillWindowHeight),
             QGuiApplication::primaryScreen()->geometry().size() * 15);
}

namespace {

// What the option words change, as one line.
QString look(App& a)
{
    FormMain& main = a.main();
    auto* comment = static_cast<FormComment*>(a.app->forms().existing("FormComment"));
    return u"scroll=%1 comment=%2 ground=%3 fill=%4"_s.arg(main.CheckOriginalSize->isChecked())
        .arg(comment && comment->isVisible() ? comment->Label1->font().pointSize() : 0)
        .arg(bgrToHexText(backColor(main.Picture1)))
        .arg(main.Frame1->isHidden() && a.shown("FormRightLeftNorm"));
}

} // namespace

void TestFormMainStart::optionWordsActOnTheirPage_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("look");
    QTest::newRow("2 PICTURESCROLL") << 2 << "scroll=1 comment=0 ground=&H00C0C0C0& fill=0";
    QTest::newRow("3 COMMENTSET2") << 3 << "scroll=1 comment=20 ground=&H00C0C0C0& fill=0";
    QTest::newRow("4 PICTBACKCOL3") << 4 << "scroll=1 comment=0 ground=&H00336699& fill=0";
    QTest::newRow("5 FORMMAXIMAMSIZE") << 5 << "scroll=1 comment=0 ground=&H00336699& fill=1";
    QTest::newRow("6 FORMNORMALSIZE") << 6 << "scroll=1 comment=0 ground=&H00336699& fill=0";
    QTest::newRow("7 PUTPICTUREINIMAGE") << 7 << "scroll=0 comment=0 ground=&H00336699& fill=0";
}

void TestFormMainStart::optionWordsActOnTheirPage()
{
    App a;
    a.home.writeFile("Lumentas/ForProgramRun_KDR/COMMENTSET2.DAT", "IPAGothic,20,&HFF,0\r\n");
    a.home.writeFile("Lumentas/ForProgramRun_KDR/PICTBACKCOL3.DAT", "&H336699\r\n");
    const QString option = u" @OPTION=%1 ENDOPTION"_s;
    a.openList(
        {a.home.picture("p1.png"), a.home.picture("p2.png") + option.arg("PICTURESCROLL"),
         a.home.picture("p3.png") + " @COMMENT=<<<<<set two ENDCOMMENT" + option.arg("COMMENTSET2"),
         a.home.picture("p4.png") + option.arg("PICTBACKCOL3"),
         a.home.picture("p5.png") + option.arg("FORMMAXIMAMSIZE"),
         a.home.picture("p6.png") + option.arg("FORMNORMALSIZE"),
         a.home.picture("p7.png") + option.arg("PUTPICTUREINIMAGE")});
    a.main().Picture1->setBackColor(0xC0C0C0);
    for (int page = 1; page < FETCH(int, page); ++page)
        a.main().CommandRight_Click();
    QCOMPARE(look(a), FETCH(QString, look));
}

void TestFormMainStart::setStoredByTheWindowIsLoadedByTheOption_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("set");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("comment") << "COMMENT"
                             << "COMMENTSET4" << QByteArray("MS UI Gothic,9,&H00336699&,0\r\n");
    QTest::newRow("picture ground") << "PICTBACKCOL"
                                    << "PICTBACKCOL5" << QByteArray("Non,Non,&H00336699&,Non \r\n");
}

void TestFormMainStart::setStoredByTheWindowIsLoadedByTheOption()
{
    App a;
    QFETCH(QString, set);
    a.openList({a.home.picture("p1.png"), a.home.picture("p2.png") +
                                              " @COMMENT=<<<<<note ENDCOMMENT" + " @OPTION=" + set +
                                              " ENDOPTION"});

    // The window: a reset, a ground colour from the dialog, stored by name.
    auto* window = a.form<FormSetFontAndColor>("FormSetFontAndColor");
    window->setMode(FETCH(QString, mode));
    window->showForm();
    window->CommandReset->click();
    a.ui.colors.enqueue(0x336699);
    window->CommandBackColor->click();
    window->Combo1->setCurrentText(set);
    window->CommandSaveAs->click();
    QCOMPARE(a.settings(qPrintable(set + ".dat")), FETCH(QByteArray, file));
    saveShot(window, u"FormSetFontAndColor_"_s + FETCH(QString, mode));

    // Back to the defaults on show; the page's option word loads the set again.
    window->CommandReset->click();
    FormMain& main = a.main();
    main.CommandRight_Click();
    QWidget* target = main.Picture1;
    if (FETCH(QString, mode) == "COMMENT")
        target = a.app->forms().existing("FormComment");
    QCOMPARE(bgrToHexText(backColor(target)), u"&H00336699&"_s);
}

void TestFormMainStart::autoPage_data()
{
    // Each page carries a sound companion, so the sounds tell which pages were
    // shown; the waits are "page:milliseconds". A page "mid" is a medium.
    QTest::addColumn<QStringList>("delays");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<int>("startPage");
    QTest::addColumn<QString>("interval");
    QTest::addColumn<QString>("act"); // "stop N": Stop pressed in wait N; "end N": the medium ends
    QTest::addColumn<QString>("pages");
    QTest::addColumn<QString>("waits");
    QTest::addColumn<bool>("stillOn"); // AutoPageOn afterwards

    QTest::newRow("forward: interval, DELAY 3, DELAY 1, then 0, a fraction, a negative")
        << QStringList{"", "3", "1", "0", "0.5", "-2"} << u"Fowerd"_s << 1 << u"2.7"_s << QString()
        << u"1 2 3 4 5 6"_s << u"1:2000 2:3000 3:1000"_s << false;
    QTest::newRow("back from the third page: DELAY 0 waits the interval as well")
        << QStringList{"", "0", "", ""} << u"Back"_s << 3 << u"2"_s << QString() << u"3 2 1"_s
        << u"3:2000 2:2000 1:2000"_s << true;
    QTest::newRow("loop goes round; Stop in a wait acts when the wait ends")
        << QStringList{"", "", ""} << u"Loop"_s << 2 << u"1"_s << u"stop 4"_s << u"1 2 3 1"_s
        << u"1:1000 2:1000 3:1000 1:1000"_s << false;
    QTest::newRow("forward from the last page leaves at once, still on")
        << QStringList{"", ""} << u"Fowerd"_s << 2 << u"3"_s << QString() << QString() << QString()
        << true;
    QTest::newRow("an interval of 0 becomes 0.001")
        << QStringList{"", ""} << u"Fowerd"_s << 1 << u"0"_s << QString() << u"1 2"_s
        << u"1:1 2:1"_s << false;
    // The medium's page plays no companion sound.
    QTest::newRow("a medium: its half second, polls to its end, then the interval")
        << QStringList{"", "mid", ""} << u"Fowerd"_s << 1 << u"2"_s << u"end 5"_s << u"1 3"_s
        << u"1:2000 2:500 2:100 2:100 2:100 2:2000 3:2000"_s << false;
}

void TestFormMainStart::autoPage()
{
    App a;
    QFETCH(QStringList, delays);
    QStringList lines;
    for (int n = 1; n <= delays.size(); ++n) {
        const QString& delay = delays[n - 1];
        lines << (delay == "mid" ? u"C:\\song.mid"_s : a.home.picture(u"p%1.png"_s.arg(n))) +
                     u" @WITH=C:\\s%1.wav ENDWITH"_s.arg(n) +
                     (delay.isEmpty() || delay == "mid" ? QString()
                                                        : " @DELAY=" + delay + " ENDDELAY");
    }
    a.home.writeFile("song.mid", "MThd");
    a.openList(lines);
    auto* option = a.form<FormOption>("FormOption");
    option->showForm();
    for (int page = 1; page < FETCH(int, startPage); ++page)
        a.main().CommandRight_Click();

    QStringList waits;
    const QString act = FETCH(QString, act);
    a.clock.onWait = [&](qint64 ms) {
        waits << u"%1:%2"_s.arg(a.app->state().PicNo).arg(ms);
        if (act == "stop " + QString::number(waits.size()))
            option->CommandStop->click();
        if (act == "end " + QString::number(waits.size()))
            static_cast<FakeEngine*>(a.main().MediaPlayer2->engine())->finish();
    };
    a.media.sounds.clear();
    option->findChild<QRadioButton*>("Option" + FETCH(QString, direction))->setChecked(true);
    option->TextIntervalTime->setText(FETCH(QString, interval));
    option->CommandStart->click();

    QStringList shown;
    for (const QString& sound : a.media.sounds)
        shown << sound.section(QLatin1Char('s'), -1).section(QLatin1Char('.'), 0, 0);
    QCOMPARE(shown.join(QLatin1Char(' ')), FETCH(QString, pages));
    QCOMPARE(waits.join(QLatin1Char(' ')), FETCH(QString, waits));
    QFETCH(bool, stillOn);
    QCOMPARE(a.app->state().AutoPageOn, stillOn);
    QCOMPARE(option->isVisible(), !stillOn); // Stop shows the window again
    if (!stillOn) {
        // The interval kept in the record is the one on show, as a whole number.
        QCOMPARE(a.app->state().DirecData.AutoPageInterval,
                 qint16(qRound(option->TextIntervalTime->text().toDouble())));
        QCOMPARE(backColor(a.main().CommandOption), kColorGrey);
    }
}

void TestFormMainStart::autoPageStops_data()
{
    QTest::addColumn<bool>("byTimer"); // else by a left click on the picture
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("the bar runs five times its length")
        << true << QStringList{"What happend? Timer is waiting too much."};
    QTest::newRow("a left click on the fitted picture") << false << QStringList();
}

void TestFormMainStart::autoPageStops()
{
    App a;
    a.openList({a.home.picture("p1.png")});
    auto* option = a.form<FormOption>("FormOption");
    QVERIFY(!option->isVisible()); // Stop shows it
    a.app->state().AutoPageOn = true;
    if (FETCH(bool, byTimer)) {
        option->BarStep = twWidth(option->LabelBack);
        option->Timer1->start();
        for (int tick = 1; tick <= 5; ++tick)
            option->Timer1_Timer();
        QVERIFY(a.ui.boxes.isEmpty()); // five lengths are still allowed
        option->Timer1_Timer();
        QVERIFY(!option->Timer1->isActive());
    } else {
        a.main().Picture3_MouseUp(a.main().Picture3, Qt::LeftButton, 100, 100);
    }
    QCOMPARE(a.ui.boxes, FETCH(QStringList, boxes));
    QVERIFY(!a.app->state().AutoPageOn);
    QVERIFY(option->StopPressed);
    QVERIFY(option->isVisible());
    saveShot(option, u"FormOption"_s);
}

void TestFormMainStart::navigatorKeepsThePageOfANewList()
{
    App a;
    QStringList six;
    for (int n = 1; n <= 6; ++n)
        six << a.home.picture(u"a%1.png"_s.arg(n));
    a.openList(six);
    FormMain& main = a.main();
    main.CommandFull->click();
    auto* navigator = a.form<FormRightLeftNorm>("FormRightLeftNorm");
    navigator->CommandRight->click(); // the navigator's bar moves within the first list
    main.FORMNORMALSIZE();

    QStringList thirty;
    for (int n = 1; n <= 30; ++n)
        thirty << a.home.picture(u"b%1.png"_s.arg(n));
    a.home.writeFile(u"thirty.lst"_s, thirty.join(u"\r\n"_s).toUtf8());
    main.OpenFileList(u"C:\\thirty.lst"_s);
    main.HScrollPicNom->setValue(19);
    QCOMPARE(a.app->state().PicNo, qint16(19));
    main.CommandFull->click();
    QCOMPARE(a.app->state().PicNo, qint16(19));
    QCOMPARE(main.TextCount->text(), u"19"_s);
    QCOMPARE(navigator->HScroll1->value(), 19);
    QCOMPARE(navigator->HScroll1->maximum(), 30);
    QCOMPARE(navigator->windowTitle(), u"メインビュウワ(19/30)"_s);
}

namespace {

// Five pictures, the show on page 3, in the normal window or on the whole
// screen; the window that has the keys.
QWidget* showOnPageThree(App& a, bool wholeScreen)
{
    QStringList five;
    for (int n = 1; n <= 5; ++n)
        five << a.home.picture(u"p%1.png"_s.arg(n));
    a.openList(five);
    FormMain& main = a.main();
    main.CommandRight_Click();
    main.CommandRight_Click();
    QWidget* window = &main;
    if (wholeScreen) {
        main.CommandFull->click();
        window = a.form<FormRightLeftNorm>("FormRightLeftNorm");
    }
    window->activateWindow();
    return QTest::qWaitForWindowActive(window) ? window : nullptr;
}

} // namespace

void TestFormMainStart::keysPageTheShow_data()
{
    QTest::addColumn<bool>("wholeScreen"); // keys to the navigator then
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("page");
    QTest::addColumn<bool>("normalAfterwards");
    for (bool whole : {false, true}) {
        const char* mode = whole ? "whole screen" : "normal";
        QTest::addRow("%s: Right", mode) << whole << int(Qt::Key_Right) << 4 << !whole;
        QTest::addRow("%s: Space", mode) << whole << int(Qt::Key_Space) << 4 << !whole;
        QTest::addRow("%s: Page Down", mode) << whole << int(Qt::Key_PageDown) << 4 << !whole;
        QTest::addRow("%s: Left", mode) << whole << int(Qt::Key_Left) << 2 << !whole;
        QTest::addRow("%s: Page Up", mode) << whole << int(Qt::Key_PageUp) << 2 << !whole;
        QTest::addRow("%s: Home", mode) << whole << int(Qt::Key_Home) << 1 << !whole;
        QTest::addRow("%s: End", mode) << whole << int(Qt::Key_End) << 5 << !whole;
        QTest::addRow("%s: Escape", mode) << whole << int(Qt::Key_Escape) << 3 << true;
    }
}

void TestFormMainStart::keysPageTheShow()
{
    App a;
    QWidget* window = showOnPageThree(a, FETCH(bool, wholeScreen));
    QVERIFY(window);
    QTest::keyClick(window, Qt::Key(FETCH(int, key)));
    FormMain& main = a.main();
    QCOMPARE(int(a.app->state().PicNo), FETCH(int, page));
    QCOMPARE(main.TextCount->text(), QString::number(FETCH(int, page)));
    QCOMPARE(main.Frame1->isVisible(), FETCH(bool, normalAfterwards));
    QCOMPARE(a.shown("FormRightLeftNorm"), !FETCH(bool, normalAfterwards));
    if (!FETCH(bool, normalAfterwards)) // the navigator's bar follows the page
        QCOMPARE(a.form<FormRightLeftNorm>("FormRightLeftNorm")->HScroll1->value(),
                 FETCH(int, page));
}

void TestFormMainStart::keysStayWithATextField()
{
    App a;
    QVERIFY(showOnPageThree(a, false));
    QLineEdit* count = a.main().TextCount;
    count->setFocus();
    QTest::keyClick(count, Qt::Key_Home);
    QTest::keyClick(count, Qt::Key_Right);
    QTest::keyClick(count, Qt::Key_Space);
    QTest::keyClick(count, Qt::Key_Left);
    QTest::keyClick(count, Qt::Key_End);
    QCOMPARE(count->text(), u"3 "_s); // typed, the cursor moved, no page turned
    QCOMPARE(count->cursorPosition(), 2);
    QCOMPARE(a.app->state().PicNo, qint16(3));
}

void TestFormMainStart::closingTheNavigatorEndsWholeScreen()
{
    App a;
    QVERIFY(showOnPageThree(a, true));
    auto* navigator = a.form<FormRightLeftNorm>("FormRightLeftNorm");
    navigator->close(); // by its frame
    QVERIFY(a.main().Frame1->isVisible());
    QVERIFY(!navigator->isVisible());
    QVERIFY(a.main().FormBase::isVisible());
    // In the normal window a close of the (hidden) navigator changes nothing.
    navigator->close();
    QVERIFY(a.main().Frame1->isVisible());
}

void TestFormMainStart::commentWindowOpensOverTheDisplayArea()
{
    App a;
    const QString comment = u" @COMMENT=<<<<<a note ENDCOMMENT"_s;
    a.openList({a.home.picture("p1.png") + comment, a.home.picture("p2.png") + comment,
                a.home.picture("p3.png"), a.home.picture("p4.png") + comment});
    FormMain& main = a.main();
    auto* window = a.form<FormComment>("FormComment");
    QVERIFY(window->isVisible());
    const QRect area(main.Picture1->mapToGlobal(QPoint(0, 0)), main.Picture1->size());
    const QRect first = frameRect(window);
    QVERIFY2(area.contains(first), qPrintable(u"%1 %2"_s.arg(first.x()).arg(first.y())));
    QVERIFY(qAbs(first.center().x() - area.center().x()) <= 1); // the middle
    QVERIFY(first.top() > area.center().y());                   // the lower half

    // Dragged, it stays there on the next comment page.
    twMove(window, twLeft(window) - 600, twTop(window) - 900);
    const QPoint dragged = frameRect(window).topLeft();
    main.CommandRight_Click();
    QVERIFY(window->isVisible());
    QCOMPARE(frameRect(window).topLeft(), dragged);
    // A page without a comment unloads it; the next one places it anew.
    main.CommandRight_Click();
    QVERIFY(!window->isVisible());
    main.CommandRight_Click();
    QVERIFY(window->isVisible());
    QCOMPARE(frameRect(window).topLeft(), first.topLeft());
}

void TestFormMainStart::labelCommentCarriesTheCommentAndIsDragged()
{
    App a;
    a.home.writeFile("Lumentas/ForProgramRun_KDR/COMMENTSET2.DAT", "IPAGothic,20,&HFF,0\r\n");
    a.openList({a.home.picture("p1.png") + " @COMMENT=<<<<<first note ENDCOMMENT",
                a.home.picture("p2.png"),
                a.home.picture("p3.png") +
                    " @COMMENT=<<<<<third note ENDCOMMENT @OPTION=COMMENTSET2 ENDOPTION"});
    FormMain& main = a.main();
    ClickLabel* label = main.LabelComment;
    QCOMPARE(label->text(), u"first note"_s);
    QVERIFY(!label->isVisible()); // the floating window shows the comment
    main.CommandRight_Click();
    QCOMPARE(label->text(), QString());
    main.CommandRight_Click();
    QCOMPARE(label->text(), u"third note"_s);
    QCOMPARE(label->font().pointSize(), 20); // the set of the page's option word
    QCOMPARE(bgrToHexText(backColor(label)), u"&H000000FF&"_s);

    // Shown for the picture work, it is dragged by the left button.
    main.setCommentVisible(true);
    QVERIFY(label->isVisible());
    twMove(label, 1500, 1500);
    QTest::mousePress(label, Qt::LeftButton, {}, QPoint(10, 5));
    QMouseEvent move(QEvent::MouseMove, QPointF(30, 35), label->mapToGlobal(QPointF(30, 35)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(label, &move);
    QCOMPARE(QPointF(twLeft(label), twTop(label)), QPointF(1500 + 300, 1500 + 450));
    QCOMPARE(main.LabelDragX, qint16(150));
    QCOMPARE(main.LabelDragY, qint16(75));
    // Without the button nothing moves.
    QMouseEvent hover(QEvent::MouseMove, QPointF(60, 60), label->mapToGlobal(QPointF(60, 60)),
                      Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(label, &hover);
    QCOMPARE(QPointF(twLeft(label), twTop(label)), QPointF(1800, 1950));
}

// The interval's hint comes with the mouse moves over Frame1, on every
// second one; Auto Page started while it shows takes it away.
void TestFormMainStart::frame1HintOnEveryOtherMove()
{
    App a;
    a.openList({a.home.picture(u"p1.png"_s), a.home.picture(u"p2.png"_s)});
    auto* option = a.form<FormOption>("FormOption");
    option->showForm();
    const auto move = [&](int x) {
        QMouseEvent event(QEvent::MouseMove, QPointF(x, 8),
                          option->Frame1->mapToGlobal(QPointF(x, 8)), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(option->Frame1, &event);
    };
    for (int x = 5; x < 9; ++x)
        move(x);
    QCOMPARE(a.ui.messages.size(), 2);
    for (const auto& message : std::as_const(a.ui.messages))
        QCOMPARE(message.text, u" 0.0～0.9秒はｷｰｲﾝ入力できます "_s);
    QVERIFY(!a.ui.messageShown); // each for its second

    // Start pressed while the next hint is on the screen.
    QList<bool> shownDuringTheShow;
    bool started = false;
    a.clock.onWait = [&](qint64 ms) {
        if (!started && ms == 1000 && a.ui.messageShown) {
            started = true;
            option->CommandStart->click();
        } else if (started && a.app->state().AutoPageOn) {
            shownDuringTheShow << a.ui.messageShown;
            move(20); // moves during the show bring no hint
        }
    };
    move(9);
    QVERIFY(started);
    QVERIFY(!shownDuringTheShow.isEmpty());
    QVERIFY(!shownDuringTheShow.contains(true));
    QCOMPARE(a.ui.messages.size(), 3);
}

QTEST_MAIN(TestFormMainStart)
#include "tst_FormMainStart.moc"
