// Auto Page on the fake clock: the walks in each direction with the waits of
// the pages' delays, a medium played to its end, the stop, and the timer's
// guard. Each page carries a sound companion, so the sounds tell which pages
// were shown, and the clock which waits were made on which page.
#include "display/MediaPanel.h"
#include "display/PictureBox.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "show/FormOption.h"
#include "start/AppFixture.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

struct Walk {
    App a;
    FormOption* option = nullptr;
    QStringList waits; // "page:milliseconds"

    // One picture page per delay ("" = none), each with a sound companion.
    explicit Walk(const QStringList& delays, const QStringList& extra = {})
    {
        QStringList lines;
        for (int n = 1; n <= delays.size(); ++n) {
            QString line = a.picture(QStringLiteral("p%1.png").arg(n)) +
                           QStringLiteral(" @WITH=C:\\s%1.wav ENDWITH").arg(n);
            if (!delays[n - 1].isEmpty())
                line += QStringLiteral(" @DELAY=") + delays[n - 1] + QStringLiteral(" ENDDELAY");
            lines << line;
        }
        a.openList(lines + extra);
        option = a.form<FormOption>("FormOption");
        option->showForm();
        a.clock.onWait = [this](qint64 ms) {
            waits << QStringLiteral("%1:%2").arg(a.app->state().PicNo).arg(ms);
        };
    }
    void start(const QString& direction, const QString& interval)
    {
        a.media.sounds.clear();
        waits.clear();
        option->findChild<QRadioButton*>(QStringLiteral("Option") + direction)->setChecked(true);
        option->TextIntervalTime->setText(interval);
        option->CommandStart->click();
    }
    QString pages() const
    {
        QStringList shown;
        for (const QString& sound : a.media.sounds)
            shown << sound.section(QLatin1Char('s'), -1).section(QLatin1Char('.'), 0, 0);
        return shown.join(QLatin1Char(' '));
    }
};

} // namespace

class TestFormOption : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void walks_data();
    void walks();
    void mediaPagePlaysToItsEnd();
    void stops_data();
    void stops();
};

void TestFormOption::walks_data()
{
    QTest::addColumn<QStringList>("delays");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<int>("startPage");
    QTest::addColumn<QString>("interval");
    QTest::addColumn<int>("stopInWait"); // the wait in which Stop is pressed, 0 for none
    QTest::addColumn<QString>("pages");
    QTest::addColumn<QString>("waits");
    QTest::addColumn<bool>("stillOn"); // AutoPageOn afterwards

    QTest::newRow("forward: interval, DELAY 3, DELAY 1, then 0, a fraction, a negative")
        << QStringList{"", "3", "1", "0", "0.5", "-2"} << "Fowerd" << 1 << "2.7" << 0
        << "1 2 3 4 5 6"
        << "1:2000 2:3000 3:1000" << false;
    QTest::newRow("back from the third page: DELAY 0 waits the interval as well")
        << QStringList{"", "0", "", ""} << "Back" << 3 << "2" << 0 << "3 2 1"
        << "3:2000 2:2000 1:2000" << true;
    QTest::newRow("loop goes round; Stop in a wait acts when the wait ends")
        << QStringList{"", "", ""} << "Loop" << 2 << "1" << 4 << "1 2 3 1"
        << "1:1000 2:1000 3:1000 1:1000" << false;
    QTest::newRow("forward from the last page leaves at once, still on")
        << QStringList{"", ""} << "Fowerd" << 2 << "3" << 0 << ""
        << "" << true;
    QTest::newRow("an interval of 0 becomes 0.001")
        << QStringList{"", ""} << "Fowerd" << 1 << "0" << 0 << "1 2"
        << "1:1 2:1" << false;
}

void TestFormOption::walks()
{
    Walk w(FETCH(QStringList, delays));
    const int stopInWait = FETCH(int, stopInWait);
    for (int page = 1; page < FETCH(int, startPage); ++page)
        w.a.main().CommandRight_Click();
    w.a.clock.onWait = [&w, stopInWait](qint64 ms) {
        w.waits << QStringLiteral("%1:%2").arg(w.a.app->state().PicNo).arg(ms);
        if (w.waits.size() == stopInWait)
            w.option->CommandStop->click();
    };
    w.start(FETCH(QString, direction), FETCH(QString, interval));
    QCOMPARE(w.pages(), FETCH(QString, pages));
    QCOMPARE(w.waits.join(QLatin1Char(' ')), FETCH(QString, waits));
    QFETCH(bool, stillOn);
    QCOMPARE(w.a.app->state().AutoPageOn, stillOn);
    QCOMPARE(w.option->isVisible(), !stillOn); // Stop shows the window again
    if (!stillOn) {
        // The interval kept in the record is the one on show, as a whole number.
        QCOMPARE(w.a.app->state().DirecData.AutoPageInterval,
                 qint16(qRound(w.option->TextIntervalTime->text().toDouble())));
        QCOMPARE(backColor(w.a.main().CommandOption), kColorGrey);
    }
}

void TestFormOption::mediaPagePlaysToItsEnd()
{
    Walk w({"", "", ""});
    w.a.home.writeFile("song.mid", "MThd");
    w.a.app->state().ListArray.set(kColMain, 2, QStringLiteral("C:\\song.mid"));
    w.a.clock.onWait = [&w](qint64 ms) {
        w.waits << QStringLiteral("%1:%2").arg(w.a.app->state().PicNo).arg(ms);
        if (w.waits.filter(QStringLiteral("2:100")).size() == 3) // the medium ends
            static_cast<FakeEngine*>(w.a.main().MediaPlayer2->engine())->finish();
    };
    w.start(QStringLiteral("Fowerd"), QStringLiteral("2"));
    // The page's own half-second, then the polls until the end, then the interval.
    QCOMPARE(w.waits.join(QLatin1Char(' ')),
             QStringLiteral("1:2000 2:500 2:100 2:100 2:100 2:2000 3:2000"));
}

void TestFormOption::stops_data()
{
    QTest::addColumn<bool>("byTimer"); // else by a left click on the picture
    QTest::addColumn<QStringList>("boxes");
    QTest::newRow("the bar runs five times its length")
        << true << QStringList{"What happend? Timer is waiting too much."};
    QTest::newRow("a left click on the fitted picture") << false << QStringList();
}

void TestFormOption::stops()
{
    Walk w({""});
    w.a.app->state().AutoPageOn = true;
    w.option->hide();
    if (FETCH(bool, byTimer)) {
        w.option->BarStep = twWidth(w.option->LabelBack);
        w.option->Timer1->start();
        for (int tick = 1; tick <= 5; ++tick)
            w.option->Timer1_Timer();
        QVERIFY(w.a.ui.boxes.isEmpty()); // five lengths are still allowed
        w.option->Timer1_Timer();
        QVERIFY(!w.option->Timer1->isActive());
    } else {
        FormMain& main = w.a.main();
        main.Picture3_MouseUp(main.Picture3, Qt::LeftButton, 100, 100);
    }
    QCOMPARE(w.a.ui.boxes, FETCH(QStringList, boxes));
    QVERIFY(!w.a.app->state().AutoPageOn);
    QVERIFY(w.option->StopPressed);
    QVERIFY(w.option->isVisible());
    saveShot(w.option, QStringLiteral("FormOption"));
}

QTEST_MAIN(TestFormOption)
#include "tst_FormOption.moc"
