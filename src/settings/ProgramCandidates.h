// The helper programs that the first start looks for, by role: Debian
// programs found on PATH, in the order of preference, each role ending with
// the desktop's opener xdg-open. Paths come back in program form
// ("Z:\usr\bin\gedit").
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

class FileSystem;

enum class ProgramRole {
    TextEditor,    // comment and text editors
    MediaPlayer,   // MIDI, animations and films
    SoundRecorder, // records and plays a sound file given by name
    WebBrowser,
    PictureEditor,
    VrmlViewer,   // .WRL
    SecondViewer, // .NFF and other 3D files
};

// The program names of a role, most wanted first; the last is "xdg-open".
const QStringList& programCandidates(ProgramRole role);

// The first candidate of the role that PATH holds, in program form. When none
// is there, the last candidate as it would stand in the system folder
// (systemFolder + "\xdg-open"), so that the row shows as not found.
QString findProgram(ProgramRole role, const QString& systemFolder, const FileSystem& fs);

// A file that the program may start: a normal file with an execute bit.
bool isProgramFile(const QString& nativePath);

} // namespace lumen
