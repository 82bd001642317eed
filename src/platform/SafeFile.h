// Whole-file writes that never leave a half-written file: the bytes go to a
// temporary file beside the target, which is then renamed over it.
#pragma once

#include <QByteArray>
#include <QString>
#include <functional>
#include <optional>

namespace lumen {

// Native path. False when the file couldn't be written; the old file, if
// any, is then untouched.
bool writeFileSafely(const QString& nativePath, const QByteArray& bytes);

// Encodes the text as text files are written (see TextCodec.h) and writes it
// safely. The text is written as given: callers add CR LF where they need it.
bool writeTextFileSafely(const QString& nativePath, const QString& text);

// The same without waiting for the disk to confirm the bytes: still never
// half-written, for output that the program makes again at will (the pages
// of a site), where a wait on the disk for each of thousands of files would
// cost more than the work.
bool writeFileQuickly(const QString& nativePath, const QByteArray& bytes);
bool writeTextFileQuickly(const QString& nativePath, const QString& text);

// Reads and decodes a whole text file; nothing when it can't be read.
std::optional<QString> readTextFile(const QString& nativePath);

namespace testing {

// Test seam: `hook` runs inside writeFileSafely after every byte has gone to
// the temporary file and just before it is renamed over the target, so a test
// can end the process there and look at what a crash leaves behind. An empty
// function removes it. Never set outside tests.
void setBeforeCommitHook(std::function<void()> hook);

} // namespace testing

} // namespace lumen
