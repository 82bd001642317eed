// The real media service on Qt Multimedia, playing files made here through
// the sound server (the null sink on a headless machine): players end and
// say so, failures end at once, sounds cut one another, a sound that can't
// play beeps once.
#include "display/MediaPanel.h"
#include "display/QtMedia.h"
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

// Generous: a loaded machine may start a pipeline slowly.
constexpr int kEndTimeout = 15000;

} // namespace

class TestQtMedia : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void enginePlaysToTheEnd_data();
    void enginePlaysToTheEnd();
    void engineEndsAtOnceOnFailure_data();
    void engineEndsAtOnceOnFailure();
    void openingAgainPlaysAgain();
    void playAfterAFailureEndsAgain();
    void stoppingGivesNoEnd();
    void videoTellsItsSize();
    void secondSoundCutsTheFirst();
    void emptyNameStopsTheSound();
    void soundThatCantPlayBeepsOnce_data();
    void soundThatCantPlayBeepsOnce();

private:
    QString write(const QString& name, const QByteArray& bytes);

    QTemporaryDir dir_;
};

QString TestQtMedia::write(const QString& name, const QByteArray& bytes)
{
    const QString path = dir_.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("can't write %s", qPrintable(path));
    return path;
}

void TestQtMedia::initTestCase()
{
    if (QMediaDevices::audioOutputs().isEmpty())
        QSKIP("No sound server answers (start PulseAudio with a null sink, as scripts/test does)");
    write(QStringLiteral("tone1500.wav"), pcmWav(1.5));
    write(QStringLiteral("tone6000.wav"), pcmWav(6.0));
    write(QStringLiteral("tone500.wav"), pcmWav(0.5));
    write(QStringLiteral("four.mid"), midiFile(4));
    write(QStringLiteral("garbage.wav"), QByteArray("RIFF\x10\0\0\0WAVEjunkjunkjunk", 20));
    write(QStringLiteral("garbage.avi"), QByteArray(4096, 'x'));
    write(QStringLiteral("text.mid"), "this is no MIDI file\r\n");
    write(QStringLiteral("empty.mp3"), QByteArray());
    write(QStringLiteral("movie.avi"), rawAvi(QSize(320, 240), 10, 10));
}

void TestQtMedia::enginePlaysToTheEnd_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("milliseconds");
    QTest::newRow("WAV, 1.5 s") << "tone1500.wav" << 1500;
    QTest::newRow("MIDI, four half-second notes") << "four.mid" << 2000;
}

void TestQtMedia::enginePlaysToTheEnd()
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
    // It played: a failure would end at once.
    QVERIFY2(took >= milliseconds * 8 / 10, qPrintable(QString::number(took)));
    QVERIFY(!engine.isPlaying());
    QTest::qWait(300);
    QCOMPARE(ended.count(), 1);
    QVERIFY(engine.videoSize().isEmpty());
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
    QFETCH(bool, video);
    QtMediaEngine engine(video);
    QSignalSpy ended(&engine, &MediaEngine::ended);
    engine.open(file.isEmpty() ? QString() : dir_.filePath(file));
    QCOMPARE(ended.count(), 0); // never from inside the call
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 5000);
    QVERIFY(!engine.isPlaying());
    QTest::qWait(300);
    QCOMPARE(ended.count(), 1);
}

void TestQtMedia::openingAgainPlaysAgain()
{
    QtMediaEngine engine(false);
    QSignalSpy ended(&engine, &MediaEngine::ended);
    const QString tone = dir_.filePath(QStringLiteral("tone500.wav"));
    engine.open(tone);
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, kEndTimeout);
    engine.open(tone);
    QTRY_VERIFY(engine.isPlaying());
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 2, kEndTimeout);

    const QString garbage = dir_.filePath(QStringLiteral("garbage.avi"));
    engine.open(garbage);
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 3, 5000);
    engine.open(garbage);
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 4, 5000);
}

void TestQtMedia::playAfterAFailureEndsAgain()
{
    // Open and then Play, as the MIDI page does: a broken file must end
    // the Play too, or the automatic walk would wait for ever.
    QtMediaEngine engine(false);
    engine.setAutoStart(false);
    QSignalSpy ended(&engine, &MediaEngine::ended);
    engine.open(dir_.filePath(QStringLiteral("text.mid")));
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 1, 5000);
    engine.play();
    QTRY_COMPARE_WITH_TIMEOUT(ended.count(), 2, 5000);
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

void TestQtMedia::secondSoundCutsTheFirst()
{
    int beeps = 0;
    QtMedia media([&beeps] { ++beeps; });
    media.playSound(dir_.filePath(QStringLiteral("tone6000.wav")));
    QTRY_VERIFY(media.isSoundPlaying());
    QTest::qWait(300);
    QElapsedTimer timer;
    timer.start();
    const QString second = dir_.filePath(QStringLiteral("tone500.wav"));
    media.playSound(second);
    QCOMPARE(media.soundSource(), QUrl::fromLocalFile(second));
    QTRY_VERIFY(media.isSoundPlaying());
    // The first had 5.7 s to go; the second lasts half a second.
    QTRY_VERIFY_WITH_TIMEOUT(!media.isSoundPlaying(), kEndTimeout);
    QVERIFY2(timer.elapsed() < 4500, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(beeps, 0);
}

void TestQtMedia::emptyNameStopsTheSound()
{
    int beeps = 0;
    QtMedia media([&beeps] { ++beeps; });
    media.playSound(dir_.filePath(QStringLiteral("tone6000.wav")));
    QTRY_VERIFY(media.isSoundPlaying());
    media.playSound(QString());
    QVERIFY(!media.isSoundPlaying());
    QCOMPARE(media.soundSource(), QUrl());
    QTest::qWait(300);
    QCOMPARE(beeps, 0);
}

void TestQtMedia::soundThatCantPlayBeepsOnce_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("broken WAV") << "garbage.wav";
    QTest::newRow("missing WAV") << "nothing.wav";
}

void TestQtMedia::soundThatCantPlayBeepsOnce()
{
    QFETCH(QString, file);
    int beeps = 0;
    QtMedia media([&beeps] { ++beeps; });
    media.playSound(dir_.filePath(QStringLiteral("tone6000.wav")));
    QTRY_VERIFY(media.isSoundPlaying());
    media.playSound(dir_.filePath(file));
    QTRY_COMPARE_WITH_TIMEOUT(beeps, 1, 5000);
    QVERIFY(!media.isSoundPlaying()); // the last sound was cut
    QTest::qWait(500);
    QCOMPARE(beeps, 1);
}

QTEST_MAIN(TestQtMedia)
#include "tst_QtMedia.moc"
