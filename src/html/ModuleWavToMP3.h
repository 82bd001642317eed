// ModuleWavToMP3: one WAV file into one MP3 file (MPEG-1 layer III at
// 44.1 kHz), read by libsndfile and encoded by LAME frame by frame, with the
// window system's events let through between frames.
#pragma once

#include <QString>
#include <QtGlobal>

namespace lumen {

class VeroProcedure_Basical;

// The texts of the three failures.
inline const QString kMp3InputMessage = QStringLiteral("入力ファイル[test.wav]を開けませんでした");
inline const QString kMp3SetupMessage = QStringLiteral("解析エラーが発生しました");
inline const QString kMp3FrameMessage = QStringLiteral("エラーが発生しました errcode = ");

// The bit rate in kilobits per second for a share of the WAV size: 160
// stands for 100 %, the fraction cut towards zero.
int Mp3BitRate(qint16 percent);

// Paths in program form. No result: the MP3 file is the result. An input
// that can't be opened gives the first message; an input in no known format
// or a set-up the encoder refuses (a rate MPEG-1 doesn't know, an output
// that can't be written, more than two channels) the second; a failed frame
// the third;
// after a message no file is left behind. The target is written whole or
// not at all.
void ConvertWavToMp3(VeroProcedure_Basical& basics, const QString& wavPath, const QString& mp3Path,
                     qint16 percent);

} // namespace lumen
