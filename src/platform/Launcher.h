// Starting outside programs. Command lines are the program's own texts of
// program-form paths joined by blanks; they never go through a shell.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace lumen {

class FileSystem;

// A file that may be started: a file, not a folder, with an exec bit set.
bool isExecutableFile(const QString& native);

// The Windows launcher's rule: the shortest blank-separated prefix that names
// an executable file (isExecutableFile) is the program; the rest is split at
// blanks, and words holding ":\" become native paths (one on an unknown drive
// stays as written). Leading blanks are passed over; there is no quoting and
// no search of PATH. Nothing when no prefix names a program. Returns native
// argv.
std::optional<QStringList> splitCommandLine(const QString& commandLine, const FileSystem& fs);

class Launcher {
public:
    virtual ~Launcher() = default;
    // Starts the command line detached, in the current folder; false when it
    // names no program or the start failed.
    virtual bool shell(const QString& commandLine) = 0;
    // Hands a file or folder to the desktop's opener (xdg-open on PATH): 42
    // on success, 2 when the path, the opener or its start fails, as
    // ShellExecute answered.
    virtual int shellExecuteOpen(const QString& programPath) = 0;
};

class ProcessLauncher : public Launcher {
public:
    explicit ProcessLauncher(const FileSystem& fs)
        : fs_(fs)
    {}
    bool shell(const QString& commandLine) override;
    int shellExecuteOpen(const QString& programPath) override;

private:
    const FileSystem& fs_;
};

} // namespace lumen
