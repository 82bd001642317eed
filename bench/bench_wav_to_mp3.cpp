// ConvertWavToMp3 of a 60-second stereo WAV against Debian's lame program at
// the same rate, in the same run. Each side runs three times; the best counts.
#include "html/ModuleWavToMP3.h"
#include "support/BasicsFixture.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <sndfile.h>

#include <cmath>
#include <cstdio>
#include <vector>

using namespace lumen;

namespace {

// Two voices of chords with a little noise, so that the encoder has work
// like that of music.
bool writeMusic(const QString& native, int seconds)
{
    constexpr int kRate = 44100;
    SF_INFO info{};
    info.samplerate = kRate;
    info.channels = 2;
    info.format = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
    SNDFILE* file = sf_open(QFile::encodeName(native).constData(), SFM_WRITE, &info);
    if (!file)
        return false;
    std::vector<float> samples(size_t(kRate) * 2);
    quint32 noise = 1;
    for (int second = 0; second < seconds; ++second) {
        for (int i = 0; i < kRate; ++i) {
            const double t = double(second * kRate + i) / kRate;
            noise = noise * 1664525u + 1013904223u;
            const double hiss = (double(noise >> 8) / double(1u << 24) - 0.5) * 0.02;
            const double root = 110.0 * std::pow(2.0, (second % 12) / 12.0);
            samples[size_t(i) * 2] = float(0.3 * std::sin(2 * M_PI * root * t) +
                                           0.2 * std::sin(2 * M_PI * root * 1.5 * t) + hiss);
            samples[size_t(i) * 2 + 1] = float(0.3 * std::sin(2 * M_PI * root * 1.25 * t) +
                                               0.15 * std::sin(2 * M_PI * root * 2 * t) - hiss);
        }
        sf_writef_float(file, samples.data(), kRate);
    }
    sf_close(file);
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    test::BasicsFixture f;

    const QString wav = f.home.native(QStringLiteral("music.wav"));
    if (!writeMusic(wav, 60))
        return 1;
    std::printf("input: 60 s stereo 44.1 kHz 16-bit WAV, %.1f MB\n", QFile(wav).size() / 1e6);
    for (const int percent : {20, 100}) {
        const int rate = Mp3BitRate(qint16(percent));
        double ours = 1e9;
        double theirs = 1e9;
        for (int round = 0; round < 3; ++round) {
            QElapsedTimer timer;
            timer.start();
            ConvertWavToMp3(f.basics, QStringLiteral("C:\\music.wav"),
                            QStringLiteral("C:\\ours.mp3"), qint16(percent));
            ours = qMin(ours, timer.nsecsElapsed() / 1e6);

            timer.restart();
            const int status = QProcess::execute(
                QStringLiteral("lame"),
                {QStringLiteral("--silent"), QStringLiteral("-b"), QString::number(rate),
                 QStringLiteral("-m"), QStringLiteral("j"), QStringLiteral("--resample"),
                 QStringLiteral("44.1"), wav, f.home.native(QStringLiteral("theirs.mp3"))});
            theirs = qMin(theirs, timer.nsecsElapsed() / 1e6);
            if (status != 0 || !f.ui.boxes.isEmpty())
                return 1;
        }
        std::printf("%3d %% = %3d kbps: lame %7.1f ms (%lld bytes), ConvertWavToMp3 %7.1f ms "
                    "(%lld bytes)   ratio %.2f (target <= 1.2)\n",
                    percent, rate, theirs,
                    QFile(f.home.native(QStringLiteral("theirs.mp3"))).size(), ours,
                    QFile(f.home.native(QStringLiteral("ours.mp3"))).size(), ours / theirs);
    }
    return 0;
}
