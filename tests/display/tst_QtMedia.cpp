// The real media service on Qt Multimedia, through the sound server (the null
// sink on a headless machine).
#include "display/MediaPanel.h"
#include "display/QtMedia.h"
#include "support/Fetch.h"
#include "support/MediaSamples.h"
#include "support/Shots.h"

#include <QAudioDevice>
#include <QElapsedTimer>
#include <QFile>
#include <QMediaDevices>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

constexpr int kEndTimeout = 15000; // a loaded machine may start a pipeline slowly

} // namespace

class TestQtMedia : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void enginePlaysToTheEndAndAgain_data();
    void enginePlaysToTheEndAndAgain();
    void engineEndsAtOnceOnFailure_data();
    void engineEndsAtOnceOnFailure();
    void stoppingGivesNoEnd();
    void videoTellsItsSize();
    void newSoundCutsTheLast_data();
    void newSoundCutsTheLast();

private:
    QTemporaryDir dir_;
};

void TestQtMedia::initTestCase()
{
    if (QMediaDevices::audioOutputs().isEmpty()) {
        // scripts/test makes sure of a sound server: there, no output is a fault.
        QVERIFY2(qEnvironmentVariableIsEmpty("LUMENTA_REQUIRE_AUDIO"),
                 "no audio output although scripts/test started a sound server");
        QSKIP("No sound server answers (start PulseAudio with a null sink, as scripts/test does)");
    }
    const QList<std::pair<const char*, QByteArray>> files{
        {"tone1500.wav", pcmWav(1.5)},
        {"tone6000.wav", pcmWav(6.0)},
        {"tone500.wav", pcmWav(0.5)},
        {"four.mid", midiFile(4)},
        {"garbage.wav", QByteArray("RIFF\x10\0\0\0WAVEjunkjunkjunk", 20)},
        {"garbage.avi", QByteArray(4096, 'x')},
        {"text.mid", "this is no MIDI file\r\n"},
        {"empty.mp3", QByteArray()},
        {"movie.avi", rawAvi(QSize(320, 240), 10, 10)}};
    for (const auto& [name, bytes] : files) {
        QFile file(dir_.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
}

void TestQtMedia::enginePlaysToTheEndAndAgain_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("WAV, 1.5 s") << "tone1500.wav" << 1500;
    QTest::newRow("MIDI, four half-second notes") << "four.mid" << 2000;
}

void TestQtMedia::enginePlaysToTheEndAndAgain()
{
    QFETCH(QString, file);
    QFETCH(int, milliseconds);
    QtMediaEngine engine(false);
    QSignalSpy ended(&engine, &MediaEngine::ended);
    QElapsedTimer timer;
    timer.start();
    engine.open(dir_.filePath(file));
    QTRY_VERIFY(engine.isPlaying());
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, kEndTimeout);
    const qint64 took = timer.elapsed();
    QVERIFY2(took >= milliseconds * 8 / 10,
             qPrintable(QString::number(took))); // a failure ends at once
    QVERIFY(!engine.isPlaying());
    QVERIFY(engine.videoSize().isEmpty());
    // The same file opened again plays again.
    engine.open(dir_.filePath(file));
    QTRY_VERIFY(engine.isPlaying());
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 2, kEndTimeout);
    QTest::qWait(300);
    QCOMPARE(ended.count(), 2);
}

void TestQtMedia::engineEndsAtOnceOnFailure_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("video");
    QTest::newRow("garbage AVI") << "garbage.avi" << true;
    QTest::newRow("text named MID") << "text.mid" << false;
    QTest::newRow("empty MP3") << "empty.mp3" << false;
    QTest::newRow("missing file") << "nothing.mid" << false;
}

void TestQtMedia::engineEndsAtOnceOnFailure()
{
    QFETCH(QString, file);
    QtMediaEngine engine(FETCH(bool, video));
    QSignalSpy ended(&engine, &MediaEngine::ended);
    engine.open(dir_.filePath(file));
    QCOMPARE(ended.count(), 0); // never from inside the call
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 5000);
    QVERIFY(!engine.isPlaying());
    // Open and then Play, as the MIDI page does: each must end again, or the
    // automatic walk would wait for ever.
    engine.setAutoStart(false);
    engine.open(dir_.filePath(file));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 2, 5000);
    engine.play();
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 3, 5000);
    QTest::qWait(300);
    QCOMPARE(ended.count(), 3);
}

void TestQtMedia::stoppingGivesNoEnd()
{
    QtMediaEngine engine(false);
    QSignalSpy ended(&engine, &MediaEngine::ended);
    engine.open(dir_.filePath(QStringLiteral("tone1500.wav")));
    QTRY_VERIFY(engine.isPlaying());
    engine.stop();
    QVERIFY(!engine.isPlaying());
    QTest::qWait(2500);
    QCOMPARE(ended.count(), 0);
}

void TestQtMedia::videoTellsItsSize()
{
    QWidget window;
    window.resize(640, 480);
    auto* panel = new MediaPanel(QStringLiteral("MediaPlayer1"),
                                 std::make_unique<QtMediaEngine>(true), &window);
    panel->setDisplaySize(MediaPanel::kDisplayVideoSize);
    window.show();
    QSignalSpy sized(panel, &MediaPanel::videoSizeChanged);
    QSignalSpy ended(panel, &MediaPanel::ended);
    QElapsedTimer timer;
    timer.start();
    panel->Open(dir_.filePath(QStringLiteral("movie.avi")));
    QTRY_VERIFY_WITH_TIMEOUT(!sized.isEmpty(), kEndTimeout);
    QCOMPARE(sized.first().first().toSize(), QSize(320, 240));
    QCOMPARE(panel->size(), QSize(320, 240 + MediaPanel::kTransportHeight));
    QCOMPARE(panel->Width(), 320.0f * 15);
    QTest::qWait(300);
    saveShot(panel, QStringLiteral("MediaPlayer1_video"));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, kEndTimeout);
    QVERIFY(timer.elapsed() >= 800);
}

void TestQtMedia::newSoundCutsTheLast_data()
{
    QTest::addColumn<QString>("file"); // played while tone6000.wav has 5.7 s to go
    QTest::addColumn<bool>("plays");
    QTest::addColumn<int>("beeps");
    QTest::newRow("half-second WAV") << "tone500.wav" << true << 0;
    QTest::newRow("empty name") << "" << false << 0;
    QTest::newRow("broken WAV") << "garbage.wav" << false << 1;
    QTest::newRow("missing WAV") << "nothing.wav" << false << 1;
}

void TestQtMedia::newSoundCutsTheLast()
{
    QFETCH(QString, file);
    QFETCH(int, beeps);
    int beeped = 0;
    QtMedia media([&beeped] { ++beeped; });
    media.playSound(dir_.filePath(QStringLiteral("tone6000.wav")));
    QTRY_VERIFY(media.isSoundPlaying());
    QTest::qWait(300);
    QElapsedTimer timer;
    timer.start();
    const QString path = file.isEmpty() ? QString() : dir_.filePath(file);
    media.playSound(path);
    QCOMPARE(media.soundSource(), QFile::exists(path) ? QUrl::fromLocalFile(path) : QUrl());
    if (FETCH(bool, plays))
        QTRY_VERIFY(media.isSoundPlaying());
    QTRY_VERIFY_WITH_TIMEOUT(!media.isSoundPlaying(), kEndTimeout);
    QVERIFY2(timer.elapsed() < 4500, qPrintable(QString::number(timer.elapsed())));
    QTRY_COMPARE_WITH_TIMEOUT(beeped, beeps, 5000);
    QTest::qWait(500);
    QCOMPARE(beeped, beeps);
}

QTEST_MAIN(TestQtMedia)
#include "tst_QtMedia.moc"
