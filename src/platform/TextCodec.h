// Text encodings of the program's files. Lists written on Windows are
// Shift-JIS (code page 932), read through iconv; new text is written in
// CP932 when every character fits, otherwise in UTF-8 with a byte-order mark,
// so nothing is ever lost.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

namespace lumen::text {

// A UTF-8 byte-order mark, or valid UTF-8 holding non-ASCII bytes, is UTF-8;
// anything else is CP932. Bytes that aren't valid CP932 become U+FFFD, one
// per bad byte, and one for a double-byte pair that maps to no character, so
// that a damaged file still reads and a trail byte never stands alone.
QString decode(const QByteArray& bytes);
QString decodeCp932(const QByteArray& bytes);

// CP932 bytes of the text, or nothing when a character has no CP932 form.
// Characters that iconv maps one way only ("¥" to "\", "−" to "－") count as
// having none: they would read back as other characters.
std::optional<QByteArray> encodeCp932(const QString& text);

// The bytes written for a text file: CP932 if it fits, else BOM + UTF-8.
// CP932 bytes that would read back as UTF-8 (a few runs of half-width kana
// form valid UTF-8) are written as BOM + UTF-8 too, so decode() always gives
// the text back.
QByteArray encodeForFile(const QString& text);

// BOM + UTF-8 whatever the text: for pages that a browser reads, where the
// mark stands above any guess of the encoding.
QByteArray encodeUtf8WithBom(const QString& text);

// A fixed-width record field: CP932 if it fits, else UTF-8; cut at a
// character boundary so that it fits `width` bytes (not padded). As with
// files, CP932 that would read back as UTF-8 is given as UTF-8.
QByteArray encodeField(const QString& text, int width);

// Lines of a text as a line-by-line reader gives them: parted at CR LF, LF or
// CR; a final line break doesn't start an empty line.
QStringList splitLines(const QString& text);

} // namespace lumen::text
