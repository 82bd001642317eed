// Whole-screen mode and the navigator, the option words of a list acting on
// their own page, and the font and colour sets: one stored by the window is
// loaded again by the option word of a page.
#include "display/FormComment.h"
#include "display/FormRightLeftNorm.h"
#include "display/PictureBox.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/Twips.h"
#include "settings/FormSetFontAndColor.h"
#include "show/FormLumentaExit.h"
#include "start/AppFixture.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

using namespace lumen;
using namespace lumen::test;

class TestFormMainFill : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void wholeScreenAndBack();
    void normalRectangle_data();
    void normalRectangle();
    void optionWordsActOnTheirPage_data();
    void optionWordsActOnTheirPage();
    void setStoredByTheWindowIsLoadedByTheOption_data();
    void setStoredByTheWindowIsLoadedByTheOption();
};

void TestFormMainFill::wholeScreenAndBack()
{
    App a;
    a.openList({a.picture("p1.png"), a.picture("p2.png"), a.picture("p3.png", 900, 700)});
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
    QCOMPARE(navigator->windowTitle(), QStringLiteral("メインビュウワ(1/3)"));

    // The navigator's arrows and its bar turn the pages.
    navigator->CommandRight->click();
    QCOMPARE(navigator->HScroll1->value(), 2);
    navigator->HScroll1->setValue(3);
    QCOMPARE(main.TextCount->text(), QStringLiteral("3"));
    QCOMPARE(a.app->state().PicNo, qint16(3));
    QVERIFY(main.Picture3->isVisible()); // fitted to the whole window
    saveShot(navigator, QStringLiteral("FormRightLeftNorm"));

    // Closing the window is refused; the exit choice takes it back to normal.
    bool exitShown = false;
    QTimer::singleShot(0, &main, [&] {
        exitShown = a.shown("FormLumentaExit");
        a.form<FormLumentaExit>("FormLumentaExit")->CommandMainNormDisp->click();
    });
    main.close();
    QVERIFY(exitShown);
    QVERIFY(main.isVisible() && main.Frame1->isVisible());
    QCOMPARE(main.frameGeometry(), normal);
    QVERIFY(!navigator->isVisible());
    QCOMPARE(QSize(main.FillWindowWidth, main.FillWindowHeight),
             QGuiApplication::primaryScreen()->geometry().size() * 15);
}

void TestFormMainFill::normalRectangle_data()
{
    QTest::addColumn<QRect>("stored"); // twips
    QTest::addColumn<QRect>("result");
    QTest::newRow("a small one snaps to 12000 by 8500")
        << QRect(600, 300, 9000, 6000) << QRect(600, 300, 12000, 8500);
    QTest::newRow("a left beyond the screen comes back to 0")
        << QRect(20000, 300, 12000, 8500) << QRect(0, 300, 12000, 8500);
}

void TestFormMainFill::normalRectangle()
{
    App a;
    a.openList({a.picture("p1.png")});
    FormMain& main = a.main();
    main.CommandFull_Click();
    QFETCH(QRect, stored);
    main.NormalWindowLeft = stored.x();
    main.NormalWindowTop = stored.y();
    main.NormalWindowWidth = stored.width();
    main.NormalWindowHeight = stored.height();
    main.FORMNORMALSIZE();
    const QRect twips = FETCH(QRect, result); // to the pixel
    QCOMPARE(main.frameGeometry(),
             QRect(twipsToPixels(twips.x()), twipsToPixels(twips.y()), twipsToPixels(twips.width()),
                   twipsToPixels(twips.height())));
}

namespace {

// What the option words change, as one line.
QString look(App& a)
{
    FormMain& main = a.main();
    auto* comment = static_cast<FormComment*>(a.app->forms().existing("FormComment"));
    return QStringLiteral("scroll=%1 comment=%2 ground=%3 fill=%4")
        .arg(main.CheckOriginalSize->isChecked())
        .arg(comment && comment->isVisible() ? comment->Label1->font().pointSize() : 0)
        .arg(bgrToHexText(backColor(main.Picture1)))
        .arg(main.Frame1->isHidden() && a.shown("FormRightLeftNorm"));
}

} // namespace

void TestFormMainFill::optionWordsActOnTheirPage_data()
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

void TestFormMainFill::optionWordsActOnTheirPage()
{
    App a;
    a.home.writeFile("Lumentas/ForProgramRun_KDR/COMMENTSET2.DAT", "IPAGothic,20,&HFF,0\r\n");
    a.home.writeFile("Lumentas/ForProgramRun_KDR/PICTBACKCOL3.DAT", "&H336699\r\n");
    const QString option = QStringLiteral(" @OPTION=%1 ENDOPTION");
    a.openList(
        {a.picture("p1.png"), a.picture("p2.png") + option.arg("PICTURESCROLL"),
         a.picture("p3.png") + " @COMMENT=<<<<<set two ENDCOMMENT" + option.arg("COMMENTSET2"),
         a.picture("p4.png") + option.arg("PICTBACKCOL3"),
         a.picture("p5.png") + option.arg("FORMMAXIMAMSIZE"),
         a.picture("p6.png") + option.arg("FORMNORMALSIZE"),
         a.picture("p7.png") + option.arg("PUTPICTUREINIMAGE")});
    a.main().Picture1->setBackColor(0xC0C0C0);
    for (int page = 1; page < FETCH(int, page); ++page)
        a.main().CommandRight_Click();
    QCOMPARE(look(a), FETCH(QString, look));
}

void TestFormMainFill::setStoredByTheWindowIsLoadedByTheOption_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("set");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("comment") << "COMMENT"
                             << "COMMENTSET4" << QByteArray("MS UI Gothic,9,&H00336699&,0\r\n");
    QTest::newRow("picture ground") << "PICTBACKCOL"
                                    << "PICTBACKCOL5" << QByteArray("Non,Non,&H00336699&,Non \r\n");
}

void TestFormMainFill::setStoredByTheWindowIsLoadedByTheOption()
{
    App a;
    QFETCH(QString, set);
    a.openList({a.picture("p1.png"), a.picture("p2.png") + " @COMMENT=<<<<<note ENDCOMMENT" +
                                         " @OPTION=" + set + " ENDOPTION"});

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
    saveShot(window, QStringLiteral("FormSetFontAndColor_") + FETCH(QString, mode));

    // Back to the defaults on show; the page's option word loads the set again.
    window->CommandReset->click();
    FormMain& main = a.main();
    main.CommandRight_Click();
    QWidget* target = main.Picture1;
    if (FETCH(QString, mode) == "TEXT")
        target = main.Text1;
    else if (FETCH(QString, mode) == "COMMENT")
        target = a.app->forms().existing("FormComment");
    QCOMPARE(bgrToHexText(backColor(target)), QStringLiteral("&H00336699&"));
}

QTEST_MAIN(TestFormMainFill)
#include "tst_FormMainFill.moc"
