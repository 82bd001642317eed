// The program reads and writes regular files only. A symbolic link to a
// regular file is followed (settings kept in a dotfiles folder); a path that
// is, or links to, anything else (a device, a named pipe, a socket, a
// folder, or a link to nothing) is never opened: opening a pipe would block,
// and reading a device could go on for ever. Every read is bounded.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class QFile;

namespace lumen {

enum class PathKind {
    Missing, // nothing at the path, not even a link
    Regular, // a regular file, or a link to one
    Folder,  // a folder, or a link to one
    Other    // a device, pipe or socket, a link to one, or a link to nothing
};

PathKind pathKind(const QString& nativePath);

// The most a settings file of the program may hold.
inline constexpr qint64 kSettingsFileLimit = 1 << 20;
// The most a list file may hold: 32,767 lines of 32,767 characters, each
// character three bytes of UTF-8, each line ended by CR LF, and a byte-order
// mark.
inline constexpr qint64 kListFileLimit = 32767LL * (32767LL * 3 + 2) + 3;

// Opens a regular file for reading: nothing else is opened, and what is
// opened is checked once more, so that a file swapped for a pipe in between
// can't block. The file is read through `file`, which owns the descriptor.
bool openRegularFile(QFile& file, const QString& nativePath);

// The whole file, when it is a regular file of at most `limit` bytes that
// can be read; nothing otherwise.
std::optional<QByteArray> readRegularFile(const QString& nativePath, qint64 limit);

} // namespace lumen
