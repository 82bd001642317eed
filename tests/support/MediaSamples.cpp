#include "support/MediaSamples.h"

#include <cmath>
#include <numbers>

namespace lumen::test {

namespace {

void le16(QByteArray& out, quint16 value)
{
    out.append(char(value & 0xFF)).append(char(value >> 8));
}

void le32(QByteArray& out, quint32 value)
{
    le16(out, quint16(value & 0xFFFF));
    le16(out, quint16(value >> 16));
}

void be16(QByteArray& out, quint16 value)
{
    out.append(char(value >> 8)).append(char(value & 0xFF));
}

void be32(QByteArray& out, quint32 value)
{
    be16(out, quint16(value >> 16));
    be16(out, quint16(value & 0xFFFF));
}

// A RIFF chunk: four-character code, little-endian length, data, a pad byte
// to an even length.
QByteArray chunk(const char* code, const QByteArray& data)
{
    QByteArray out(code, 4);
    le32(out, quint32(data.size()));
    out.append(data);
    if (data.size() % 2)
        out.append('\0');
    return out;
}

QByteArray list(const char* type, const QByteArray& content)
{
    return chunk("LIST", QByteArray(type, 4) + content);
}

} // namespace

QByteArray pcmWav(double seconds, int sampleRate, double frequency)
{
    const int samples = int(seconds * sampleRate);
    QByteArray format;
    le16(format, 1); // PCM
    le16(format, 1); // mono
    le32(format, quint32(sampleRate));
    le32(format, quint32(sampleRate * 2));
    le16(format, 2);  // bytes a frame
    le16(format, 16); // bits a sample
    QByteArray data;
    data.reserve(samples * 2);
    for (int i = 0; i < samples; ++i) {
        const double phase = 2 * std::numbers::pi * frequency * i / sampleRate;
        le16(data, quint16(qint16(std::lround(8000 * std::sin(phase)))));
    }
    return chunk("RIFF", QByteArray("WAVE") + chunk("fmt ", format) + chunk("data", data));
}

QByteArray midiFile(int notes)
{
    static constexpr int kScale[] = {60, 62, 64, 65, 67, 69, 71, 72};
    constexpr int kTicksPerQuarter = 96;
    QByteArray track;
    // Tempo 500000 microseconds a quarter note, piano.
    track.append(QByteArray::fromHex("00FF5103"
                                     "07A120"
                                     "00C000"));
    for (int i = 0; i < notes; ++i) {
        const char key = char(kScale[i % 8]);
        track.append('\0').append(char(0x90)).append(key).append(char(100));
        // Delta of one quarter note as a variable-length number (96 fits one byte).
        track.append(char(kTicksPerQuarter)).append(char(0x80)).append(key).append(char(64));
    }
    track.append(QByteArray::fromHex("00FF2F00"));

    QByteArray out("MThd");
    be32(out, 6);
    be16(out, 0); // one track
    be16(out, 1);
    be16(out, kTicksPerQuarter);
    out.append("MTrk");
    be32(out, quint32(track.size()));
    return out + track;
}

QByteArray rawAvi(QSize size, int frames, int framesPerSecond, QColor colour)
{
    const int rowBytes = (size.width() * 3 + 3) & ~3;
    const int frameBytes = rowBytes * size.height();

    QByteArray mainHeader;
    le32(mainHeader, quint32(1000000 / framesPerSecond));
    le32(mainHeader, quint32(frameBytes * framesPerSecond));
    le32(mainHeader, 0);    // padding granularity
    le32(mainHeader, 0x10); // has an index
    le32(mainHeader, quint32(frames));
    le32(mainHeader, 0); // initial frames
    le32(mainHeader, 1); // streams
    le32(mainHeader, quint32(frameBytes));
    le32(mainHeader, quint32(size.width()));
    le32(mainHeader, quint32(size.height()));
    for (int i = 0; i < 4; ++i)
        le32(mainHeader, 0);

    QByteArray streamHeader("vidsDIB ");
    le32(streamHeader, 0); // flags
    le16(streamHeader, 0); // priority
    le16(streamHeader, 0); // language
    le32(streamHeader, 0); // initial frames
    le32(streamHeader, 1); // scale
    le32(streamHeader, quint32(framesPerSecond));
    le32(streamHeader, 0); // start
    le32(streamHeader, quint32(frames));
    le32(streamHeader, quint32(frameBytes));
    le32(streamHeader, 0xFFFFFFFF); // quality
    le32(streamHeader, 0);          // sample size
    le16(streamHeader, 0);
    le16(streamHeader, 0);
    le16(streamHeader, quint16(size.width()));
    le16(streamHeader, quint16(size.height()));

    QByteArray bitmapInfo;
    le32(bitmapInfo, 40);
    le32(bitmapInfo, quint32(size.width()));
    le32(bitmapInfo, quint32(size.height()));
    le16(bitmapInfo, 1);  // planes
    le16(bitmapInfo, 24); // bits a pixel
    le32(bitmapInfo, 0);  // no compression
    le32(bitmapInfo, quint32(frameBytes));
    for (int i = 0; i < 4; ++i)
        le32(bitmapInfo, 0);

    QByteArray row;
    for (int x = 0; x < size.width(); ++x)
        row.append(char(colour.blue())).append(char(colour.green())).append(char(colour.red()));
    row.append(QByteArray(rowBytes - row.size(), '\0'));
    const QByteArray frame = row.repeated(size.height());

    QByteArray movie;
    QByteArray index;
    for (int i = 0; i < frames; ++i) {
        index.append("00db");
        le32(index, 0x10);                      // key frame
        le32(index, quint32(4 + movie.size())); // from the "movi" word
        le32(index, quint32(frameBytes));
        movie.append(chunk("00db", frame));
    }

    const QByteArray header =
        list("hdrl", chunk("avih", mainHeader) +
                         list("strl", chunk("strh", streamHeader) + chunk("strf", bitmapInfo)));
    return chunk("RIFF", QByteArray("AVI ") + header + list("movi", movie) + chunk("idx1", index));
}

} // namespace lumen::test
