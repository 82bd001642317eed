#include "html/ModuleWavToMP3.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/FileSystem.h"
#include "platform/RegularFile.h"
#include "platform/SafeFile.h"
#include "platform/UserDialogs.h"

#include <lame/lame.h>
#include <sndfile.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

namespace lumen {
namespace {

constexpr int kOutputRate = 44100;
constexpr int kFrameSamples = 1152; // samples per channel in one MPEG-1 layer III frame

// The rates of MPEG-1 layer III; LAME would round any other to one of these.
constexpr std::array kMpeg1Rates = {32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};

struct SoundFileCloser {
    void operator()(SNDFILE* file) const { sf_close(file); }
};
struct EncoderCloser {
    void operator()(lame_global_flags* encoder) const { lame_close(encoder); }
};
using SoundFile = std::unique_ptr<SNDFILE, SoundFileCloser>;
using Encoder = std::unique_ptr<lame_global_flags, EncoderCloser>;

bool isMpeg1Rate(int rate)
{
    return std::find(kMpeg1Rates.begin(), kMpeg1Rates.end(), rate) != kMpeg1Rates.end();
}

// Mode 2 of the encoder: joint stereo for two channels, mono for one.
bool configure(lame_global_flags* encoder, const SF_INFO& info, int rate)
{
    if (!isMpeg1Rate(rate) || info.channels < 1 || info.channels > 2)
        return false;
    lame_set_num_channels(encoder, info.channels);
    lame_set_in_samplerate(encoder, info.samplerate);
    lame_set_out_samplerate(encoder, kOutputRate);
    lame_set_mode(encoder, info.channels == 2 ? JOINT_STEREO : MONO);
    lame_set_VBR(encoder, vbr_off);
    lame_set_brate(encoder, rate);
    lame_set_bWriteVbrTag(encoder, 1);
    return lame_init_params(encoder) >= 0;
}

bool writeBytes(StagedFile& out, const std::vector<unsigned char>& bytes, int count)
{
    return count <= 0 || out.write(reinterpret_cast<const char*>(bytes.data()), count);
}

// The closing frames, then the information frame at the head of the file,
// which tells decoders the exact length of the sound.
bool finish(lame_global_flags* encoder, StagedFile& out, std::vector<unsigned char>& bytes)
{
    const int flushed = lame_encode_flush(encoder, bytes.data(), int(bytes.size()));
    if (flushed < 0 || !writeBytes(out, bytes, flushed))
        return false;
    const size_t tag = lame_get_lametag_frame(encoder, bytes.data(), bytes.size());
    if (tag > 0 && tag <= bytes.size() &&
        !out.writeAt(0, reinterpret_cast<const char*>(bytes.data()), qint64(tag)))
        return false;
    return out.commit();
}

} // namespace

int Mp3BitRate(qint16 percent)
{
    return int(percent / 100.0 * 160.0);
}

void ConvertWavToMp3(VeroProcedure_Basical& basics, const QString& wavPath, const QString& mp3Path,
                     qint16 percent)
{
    const Encoder encoder(lame_init());
    if (!encoder)
        return;
    UserDialogs& ui = basics.services().ui;
    const FileSystem& fs = basics.services().fs;

    SF_INFO info{};
    const QString native = fs.toNative(wavPath);
    // Only a regular file is opened: a pipe would block.
    const QByteArray input =
        pathKind(native) == PathKind::Regular ? native.toLocal8Bit() : QByteArray();
    const SoundFile sound(input.isEmpty() ? nullptr : sf_open(input.constData(), SFM_READ, &info));
    if (!sound) {
        // A file that can't be read is told apart from one in no known format.
        const bool unreadable = input.isEmpty() || sf_error(nullptr) == SF_ERR_SYSTEM;
        ui.msgBoxExclamation(unreadable ? kMp3InputMessage : kMp3SetupMessage);
        return;
    }
    const QString output = fs.toNative(mp3Path);
    if (!configure(encoder.get(), info, Mp3BitRate(percent)) || output.isEmpty()) {
        ui.msgBoxExclamation(kMp3SetupMessage);
        return;
    }
    StagedFile out(output, Durability::Synced);
    if (!out.isOpen()) {
        ui.msgBoxExclamation(kMp3SetupMessage);
        return;
    }

    std::vector<float> samples(size_t(kFrameSamples) * size_t(info.channels));
    std::vector<unsigned char> bytes(kFrameSamples * 5 / 4 + 7200);
    for (;;) {
        const sf_count_t read = sf_readf_float(sound.get(), samples.data(), kFrameSamples);
        if (read <= 0)
            break;
        const int count = int(read);
        const int encoded =
            info.channels == 2
                ? lame_encode_buffer_interleaved_ieee_float(encoder.get(), samples.data(), count,
                                                            bytes.data(), int(bytes.size()))
                : lame_encode_buffer_ieee_float(encoder.get(), samples.data(), samples.data(),
                                                count, bytes.data(), int(bytes.size()));
        if (encoded < 0) {
            out.fail();
            ui.msgBoxExclamation(kMp3FrameMessage + QString::number(encoded));
            return;
        }
        if (!writeBytes(out, bytes, encoded))
            break;
        basics.DoEvents();
    }
    finish(encoder.get(), out, bytes);
}

} // namespace lumen
