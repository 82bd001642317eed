// WAV files made here become MP3 files that Debian's mpg123 decodes to the
// WAV's length at 44.1 kHz, at the rate the percentage gives; bad rates and
// vanished inputs give their messages and no file.
#include "html/ModuleWavToMP3.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"

#include <QProcess>
#include <QTest>

#include <sndfile.h>

#include <cmath>
#include <vector>

using namespace lumen;
using namespace lumen::test;

namespace {

// A tone of `seconds` as 16-bit PCM with the given rate and channels.
void writeWav(const QString& native, double seconds, int rate, int channels)
{
    SF_INFO info{};
    info.samplerate = rate;
    info.channels = channels;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* file = sf_open(QFile::encodeName(native).constData(), SFM_WRITE, &info);
    QVERIFY(file);
    const auto frames = sf_count_t(seconds * rate);
    std::vector<float> samples(size_t(frames * channels));
    for (sf_count_t i = 0; i < frames; ++i)
        for (int c = 0; c < channels; ++c)
            samples[size_t(i * channels + c)] = float(0.4 * std::sin(i * (0.05 + 0.02 * c)));
    sf_writef_float(file, samples.data(), frames);
    sf_close(file);
}

// mpg123 writes what it decodes to a WAV, which libsndfile measures.
SF_INFO decode(const QString& mp3, const QString& wav)
{
    QProcess::execute("mpg123", {"-q", "-w", wav, mp3});
    SF_INFO info{};
    if (SNDFILE* file = sf_open(QFile::encodeName(wav).constData(), SFM_READ, &info))
        sf_close(file);
    return info;
}

// The bit rate of the first frame header: MPEG-1 layer III at 44.1 kHz.
int headerRate(const QByteArray& mp3)
{
    static const int rates[] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
    if (mp3.size() < 4 || uchar(mp3[0]) != 0xFF || (uchar(mp3[1]) & 0xFE) != 0xFA ||
        (uchar(mp3[2]) & 0x0C) != 0)
        return -1;
    return rates[uchar(mp3[2]) >> 4 & 0x0F];
}

} // namespace

class TestWavToMp3 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void converts_data()
    {
        QTest::addColumn<int>("rate");
        QTest::addColumn<int>("channels");
        QTest::addColumn<int>("percent");
        QTest::addColumn<int>("kbps");
        // A frame of 56 kbps or less is too small to carry the information frame
        // that tells the decoder the length, so the decoder gives the codec's
        // delay (576 + 529 samples) in front of the sound.
        QTest::addColumn<int>("delay");
        QTest::newRow("stereo 44.1 kHz at 20 %") << 44100 << 2 << 20 << 32 << 1105;
        QTest::newRow("mono 22.05 kHz at 100 %") << 22050 << 1 << 100 << 160 << 0;
        QTest::newRow("stereo 48 kHz at 25 %") << 48000 << 2 << 25 << 40 << 1105;
    }

    void converts()
    {
        BasicsFixture f;
        const int rate = FETCH(int, rate);
        writeWav(f.home.native("in.wav"), 3.0, rate, FETCH(int, channels));
        ConvertWavToMp3(f.basics, "C:\\in.wav", "C:\\site\\media\\in.mp3", 0);
        // A missing folder isn't made: the output can't be opened.
        QCOMPARE(f.ui.boxes, QStringList{kMp3SetupMessage});
        QVERIFY(!f.home.exists("site"));
        f.ui.boxes.clear();
        f.home.makeFolder("out");
        const int before = f.clock.doEventsCount;
        ConvertWavToMp3(f.basics, "C:\\in.wav", "C:\\out\\in.mp3", qint16(FETCH(int, percent)));
        QCOMPARE(f.ui.boxes, QStringList());
        // Events run between frames: 3 s are over a hundred frames of 1152 samples.
        QVERIFY(f.clock.doEventsCount - before >= 3 * rate / 1152);

        QCOMPARE(headerRate(f.home.readFile("out/in.mp3")), FETCH(int, kbps));
        const SF_INFO decoded = decode(f.home.native("out/in.mp3"), f.home.native("out/back.wav"));
        QCOMPARE(decoded.samplerate, 44100);
        const double expected = 3.0 * 44100 + FETCH(int, delay);
        QVERIFY2(std::abs(double(decoded.frames) - expected) <= 1152,
                 qPrintable(QString::number(decoded.frames)));
    }

    void refused_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<int>("percent");
        QTest::addColumn<QString>("message");
        QTest::newRow("0 %") << "C:\\in.wav" << 0 << kMp3SetupMessage;
        QTest::newRow("10 %, 16 kbps isn't MPEG-1") << "C:\\in.wav" << 10 << kMp3SetupMessage;
        QTest::newRow("33 %, 52 kbps isn't MPEG-1") << "C:\\in.wav" << 33 << kMp3SetupMessage;
        QTest::newRow("a WAV that vanished") << "C:\\gone.wav" << 20 << kMp3InputMessage;
        QTest::newRow("not a sound") << "C:\\text.wav" << 20 << kMp3SetupMessage;
    }

    void refused()
    {
        BasicsFixture f;
        writeWav(f.home.native("in.wav"), 0.5, 44100, 2);
        f.home.writeFile("text.wav", "no sound here");
        ConvertWavToMp3(f.basics, FETCH(QString, input), "C:\\out.mp3",
                        qint16(FETCH(int, percent)));
        QCOMPARE(f.ui.boxes, QStringList{FETCH(QString, message)});
        QVERIFY(!f.home.exists("out.mp3"));
        QCOMPARE(QDir(f.home.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
    }
};

QTEST_GUILESS_MAIN(TestWavToMp3)
#include "tst_WavToMp3.moc"
