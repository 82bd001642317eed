// MediaPanel on the recording engine: the control's operations reach the
// player, the end is passed on, DisplaySize 3 takes the video's size with
// the transport bar, the full-screen setting follows the play.
#include "display/MediaPanel.h"
#include "support/FakeMedia.h"
#include "support/Shots.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace lumen;
using namespace lumen::test;

namespace {

struct Panel {
    FakeMedia media;
    QWidget window;
    MediaPanel* panel;
    FakeEngine* engine;

    explicit Panel(bool video, QSize size = QSize())
    {
        window.resize(800, 600);
        panel = new MediaPanel(QStringLiteral("MediaPlayer1"), media.createEngine(video), &window);
        engine = media.engines.last();
        engine->size = size;
        window.show();
    }
};

} // namespace

class TestMediaPanel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void operationsReachTheEngine();
    void buttonsOfTheTransport();
    void endIsPassedOn();
    void displaySizeThreeTakesTheVideoSize_data();
    void displaySizeThreeTakesTheVideoSize();
    void displaySizeDefaultKeepsTheOwnersSize();
    void lateVideoSizeIsToldAfterSizing();
    void fullScreenFollowsThePlay();
};

void TestMediaPanel::operationsReachTheEngine()
{
    Panel p(true);
    p.panel->setAutoStart(false);
    p.panel->Open(QStringLiteral("/shows/a.avi"));
    p.panel->Play();
    p.panel->Stop();
    QCOMPARE(p.engine->calls, (QStringList{"open /shows/a.avi", "play", "stop"}));
    QCOMPARE(p.engine->autoStart, false);
    QVERIFY(!p.panel->isPlaying());
}

void TestMediaPanel::buttonsOfTheTransport()
{
    Panel p(false);
    p.panel->Open(QStringLiteral("/shows/a.mid"));
    QTest::mouseClick(p.panel->findChild<QToolButton*>("StopButton"), Qt::LeftButton);
    QTest::mouseClick(p.panel->findChild<QToolButton*>("PlayButton"), Qt::LeftButton);
    QCOMPARE(p.engine->calls, (QStringList{"open /shows/a.mid", "stop", "play"}));
    QVERIFY(p.panel->isPlaying());
}

void TestMediaPanel::endIsPassedOn()
{
    Panel p(false);
    QSignalSpy ended(p.panel, &MediaPanel::ended);
    p.panel->Open(QStringLiteral("/shows/a.mid"));
    QCOMPARE(ended.count(), 0);
    p.engine->finish();
    QCOMPARE(ended.count(), 1);
    QVERIFY(!p.panel->isPlaying());
}

void TestMediaPanel::displaySizeThreeTakesTheVideoSize_data()
{
    QTest::addColumn<QSize>("video");
    QTest::addColumn<QSize>("panel");
    QTest::newRow("320 by 240") << QSize(320, 240) << QSize(320, 240 + 28);
    QTest::newRow("narrower than the transport") << QSize(96, 72) << QSize(160, 72 + 28);
}

void TestMediaPanel::displaySizeThreeTakesTheVideoSize()
{
    QFETCH(QSize, video);
    QFETCH(QSize, panel);
    Panel p(true, video);
    p.panel->resize(100, 100);
    p.panel->setDisplaySize(3);
    p.panel->Open(QStringLiteral("/shows/a.avi"));
    QCOMPARE(p.panel->size(), panel);
    QCOMPARE(p.panel->Height(), float(panel.height() * 15));
    // The picture fills the panel above the bar.
    QCOMPARE(p.engine->videoSurface()->parentWidget(), p.panel);
    QTRY_COMPARE(p.engine->videoSurface()->size(), QSize(panel.width(), video.height()));
    saveShot(p.panel, QStringLiteral("MediaPlayer1_DisplaySize3"));
}

void TestMediaPanel::displaySizeDefaultKeepsTheOwnersSize()
{
    Panel p(true, QSize(320, 240));
    p.panel->resize(500, 400);
    p.panel->Open(QStringLiteral("/shows/a.avi"));
    QCOMPARE(p.panel->size(), QSize(500, 400));
    // Back to 0 after 3: the size stays as it was taken.
    p.panel->setDisplaySize(3);
    QCOMPARE(p.panel->size(), QSize(320, 268));
    p.panel->setDisplaySize(0);
    QCOMPARE(p.panel->size(), QSize(320, 268));
}

void TestMediaPanel::lateVideoSizeIsToldAfterSizing()
{
    Panel p(true);
    p.panel->setDisplaySize(3);
    QSize sizeWhenTold;
    connect(p.panel, &MediaPanel::videoSizeChanged, p.panel,
            [&] { sizeWhenTold = p.panel->size(); });
    p.panel->Open(QStringLiteral("/shows/a.avi"));
    QVERIFY(sizeWhenTold.isEmpty()); // nothing known yet
    // The player learns the size later, as a real one does.
    p.engine->size = QSize(400, 300);
    Q_EMIT p.engine->videoSizeChanged(QSize(400, 300));
    QCOMPARE(sizeWhenTold, QSize(400, 328));
    QCOMPARE(p.panel->videoSize(), QSize(400, 300));
}

void TestMediaPanel::fullScreenFollowsThePlay()
{
    Panel p(true, QSize(320, 240));
    p.panel->setFullScreen(true); // nothing plays: only the setting
    QCOMPARE(p.engine->calls, QStringList());
    p.panel->Open(QStringLiteral("/shows/a.avi"));
    p.engine->finish();
    p.panel->Play();
    p.panel->Stop();
    QCOMPARE(p.engine->calls, (QStringList{"open /shows/a.avi", "fullscreen on", "fullscreen off",
                                           "play", "fullscreen on", "stop", "fullscreen off"}));
    QVERIFY(p.panel->FullScreen());
    p.engine->calls.clear();
    p.panel->setFullScreen(false);
    p.panel->Open(QStringLiteral("/shows/b.avi"));
    QCOMPARE(p.engine->calls, (QStringList{"fullscreen off", "open /shows/b.avi"}));
}

QTEST_MAIN(TestMediaPanel)
#include "tst_MediaPanel.moc"
