// Small media files made byte by byte for tests of real players: a PCM WAV
// tone, a Standard MIDI File of a few notes, and an AVI of uncompressed
// frames.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>

namespace lumen::test {

// 16-bit mono PCM: a sine tone of `seconds`.
QByteArray pcmWav(double seconds, int sampleRate = 22050, double frequency = 440.0);

// A format-0 MIDI file at 120 beats a minute: `notes` quarter notes (half a
// second each) going up the C major scale from middle C.
QByteArray midiFile(int notes);

// An AVI of `frames` 24-bit RGB frames (no compression) of the given size
// at `framesPerSecond`, each filled with one colour.
QByteArray rawAvi(QSize size, int frames, int framesPerSecond, QColor colour = Qt::darkCyan);

} // namespace lumen::test
