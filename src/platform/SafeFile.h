// Whole-file writes that never leave a half-written file: the bytes go to a
// staged file beside the target, every write and the flush to the disk are
// checked, and only a complete file is renamed over the target. A write that
// fails leaves the old file untouched and removes what it staged.
//
// Only regular files are written: a target that is, or links to, a device, a
// pipe, a socket or a folder is refused, and so is a link to nothing. A link
// to a regular file is kept, and the file it names is replaced.
#pragma once

#include "platform/RegularFile.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>
#include <sys/types.h>

namespace lumen {

enum class Durability {
    Quick,           // renamed when written, not waited for on the disk
    Synced,          // on the disk before it replaces the target
    SyncedWithFolder // and the rename itself on the disk too
};

// A file being written in place of `target`. Staged files are named
// ".<name>.lumenta-<pid>-<six characters>" in the target's folder, so that a
// start can recognise and remove those that a killed process left behind.
class StagedFile {
public:
    // With `mode`, the new file takes those permission bits; without, those
    // of the file it replaces, or the bits a new file gets.
    StagedFile(const QString& nativeTarget, Durability durability,
               std::optional<mode_t> mode = std::nullopt);
    ~StagedFile(); // removes the staged file unless it was committed
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;

    bool isOpen() const { return fd_ >= 0; }
    int descriptor() const { return fd_; }
    void setMode(mode_t mode); // the new file's permission bits

    // False (and the staged file dropped) when any byte couldn't be written.
    bool write(const char* data, qint64 size);
    bool write(const QByteArray& bytes) { return write(bytes.constData(), bytes.size()); }
    // Writes over bytes already written (a header filled in at the end).
    bool writeAt(qint64 offset, const char* data, qint64 size);
    // Marks the staged file as failed, for writers that fill the descriptor.
    void fail();

    // Flushes, renames over the target; true when the target holds the new
    // bytes.
    bool commit();

private:
    void discard();

    QByteArray target_;
    QByteArray staged_;
    int fd_ = -1;
    Durability durability_;
};

// Native path. False when the file couldn't be written; the old file, if
// any, is then untouched.
bool writeFileSafely(const QString& nativePath, const QByteArray& bytes,
                     Durability durability = Durability::Synced);

// Encodes the text as text files are written (see TextCodec.h) and writes it
// safely. The text is written as given: callers add CR LF where they need it.
bool writeTextFileSafely(const QString& nativePath, const QString& text);

// The same without waiting for the disk to confirm the bytes: still never
// half-written, for output that the program makes again at will (the pages
// of a site), where a wait on the disk for each of thousands of files would
// cost more than the work.
bool writeFileQuickly(const QString& nativePath, const QByteArray& bytes);
bool writeTextFileQuickly(const QString& nativePath, const QString& text);

// Reads and decodes a whole text file; nothing when it isn't a regular file,
// can't be read or holds more than `limit` bytes.
std::optional<QString> readTextFile(const QString& nativePath, qint64 limit = kListFileLimit);
// A settings file of the program: at most kSettingsFileLimit bytes.
std::optional<QString> readSettingsFile(const QString& nativePath);

// The process that staged the file of this name, when it is a staged file.
std::optional<pid_t> stagedFileOwner(const QString& fileName);

// Removes the staged files in the native folder that no running process
// owns and that are older than `minimumAgeSeconds`; the number removed.
int removeStaleStagedFiles(const QString& nativeFolder, int minimumAgeSeconds = 60);

namespace testing {

// Test seam: `hook` runs inside writeFileSafely after every byte has gone to
// the temporary file and just before it is renamed over the target, so a test
// can end the process there and look at what a crash leaves behind. An empty
// function removes it. Never set outside tests.
void setBeforeCommitHook(std::function<void()> hook);

} // namespace testing

} // namespace lumen
