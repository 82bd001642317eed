// The platform services that the program's logic reaches the system through.
// The application builds the real ones; tests build fakes.
#pragma once

namespace lumen {

class Clock;
class FileSystem;
class Launcher;
class Media;
class UserDialogs;

struct Services {
    Clock& clock;
    UserDialogs& ui;
    Launcher& launcher;
    FileSystem& fs;
    Media& media;
};

} // namespace lumen
