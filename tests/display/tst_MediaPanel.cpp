// MediaPanel on the recording engine.
#include "display/MediaPanel.h"
#include "support/FakeMedia.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QSignalSpy>
#include <QSlider>
#include <QStyle>
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
    void operationsAndButtonsReachTheEngine();
    void displaySize_data();
    void displaySize();
    void lateVideoSizeIsToldAfterSizing();
    void fullScreenFollowsThePlay();
    void barAndButtonFollowThePlayer_data();
    void barAndButtonFollowThePlayer();
};

void TestMediaPanel::operationsAndButtonsReachTheEngine()
{
    Panel p(false);
    QSignalSpy ended(p.panel, &MediaPanel::ended);
    p.panel->setAutoStart(false);
    p.panel->Open(QStringLiteral("/shows/a.mid"));
    p.panel->Play();
    p.panel->Stop();
    QVERIFY(!p.panel->isPlaying());
    QTest::mouseClick(p.panel->findChild<QToolButton*>("PlayButton"), Qt::LeftButton);
    QVERIFY(p.panel->isPlaying());
    QTest::mouseClick(p.panel->findChild<QToolButton*>("StopButton"), Qt::LeftButton);
    QCOMPARE(p.engine->calls, (QStringList{"open /shows/a.mid", "play", "stop", "play", "stop"}));
    QCOMPARE(p.engine->autoStart, false);
    p.panel->Play();
    QCOMPARE(ended.count(), 0);
    p.engine->finish();
    QCOMPARE(ended.count(), 1);
    QVERIFY(!p.panel->isPlaying());
}

void TestMediaPanel::displaySize_data()
{
    QTest::addColumn<QSize>("video");
    QTest::addColumn<int>("before");       // DisplaySize when the file opens
    QTest::addColumn<QList<int>>("after"); // and the ones set after
    QTest::addColumn<QSize>("panel");      // the owner made it 100 by 100
    QTest::newRow("3: 320 by 240") << QSize(320, 240) << 3 << QList<int>{} << QSize(320, 240 + 28);
    QTest::newRow("3: narrower than the transport")
        << QSize(96, 72) << 3 << QList<int>{} << QSize(160, 72 + 28);
    QTest::newRow("0 keeps the owner's size")
        << QSize(320, 240) << 0 << QList<int>{} << QSize(100, 100);
    QTest::newRow("back to 0 keeps what 3 took")
        << QSize(320, 240) << 0 << QList<int>{3, 0} << QSize(320, 268);
}

void TestMediaPanel::displaySize()
{
    QFETCH(QSize, panel);
    Panel p(true, FETCH(QSize, video));
    p.panel->resize(100, 100);
    p.panel->setDisplaySize(FETCH(int, before));
    p.panel->Open(QStringLiteral("/shows/a.avi"));
    for (int size : FETCH(QList<int>, after))
        p.panel->setDisplaySize(size);
    QCOMPARE(p.panel->size(), panel);
    QCOMPARE(p.panel->Height(), float(panel.height() * 15));
    // The picture fills the panel above the bar.
    QCOMPARE(p.engine->videoSurface()->parentWidget(), p.panel);
    QTRY_COMPARE(p.engine->videoSurface()->size(), panel - QSize(0, 28));
    saveShot(p.panel, QStringLiteral("MediaPlayer1_DisplaySize"));
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

void TestMediaPanel::barAndButtonFollowThePlayer_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("MIDI") << "/shows/four.mid";
    QTest::newRow("MP3") << "/shows/voice.mp3";
}

// While the medium plays, the position bar goes with it and the play button
// offers a pause; a pause holds the bar; at the end the bar is back at its
// start and the button offers play again.
void TestMediaPanel::barAndButtonFollowThePlayer()
{
    Panel p(false);
    auto* bar = p.panel->findChild<QSlider*>("PositionBar");
    auto* play = p.panel->findChild<QToolButton*>("PlayButton");
    p.engine->length = 4000;
    p.panel->Open(FETCH(QString, file)); // plays at once
    QCOMPARE(play->toolTip(), QStringLiteral("一時停止"));
    QCOMPARE(play->icon().pixmap(16).toImage(),
             p.panel->style()->standardIcon(QStyle::SP_MediaPause).pixmap(16).toImage());
    QCOMPARE(bar->maximum(), 4000);
    p.engine->at = 1500;
    QTRY_COMPARE(bar->value(), 1500);
    p.engine->at = 2750;
    QTRY_COMPARE(bar->value(), 2750);

    QTest::mouseClick(play, Qt::LeftButton);
    QCOMPARE(p.engine->calls.last(), QStringLiteral("pause"));
    QCOMPARE(play->toolTip(), QStringLiteral("再生"));
    p.engine->at = 0; // a held player is no longer asked
    QTest::qWait(400);
    QCOMPARE(bar->value(), 2750);

    QTest::mouseClick(play, Qt::LeftButton);
    QCOMPARE(p.engine->calls.last(), QStringLiteral("play"));
    QCOMPARE(play->toolTip(), QStringLiteral("一時停止"));
    p.engine->at = 3900;
    QTRY_COMPARE(bar->value(), 3900);
    p.engine->finish();
    QCOMPARE(bar->value(), 0);
    QCOMPARE(play->toolTip(), QStringLiteral("再生"));
    const auto face = [&](QStyle::StandardPixmap icon) {
        return p.panel->style()->standardIcon(icon).pixmap(16).toImage();
    };
    QCOMPARE(play->icon().pixmap(16).toImage(), face(QStyle::SP_MediaPlay));
    QVERIFY(face(QStyle::SP_MediaPlay) != face(QStyle::SP_MediaPause));
}

QTEST_MAIN(TestMediaPanel)
#include "tst_MediaPanel.moc"
