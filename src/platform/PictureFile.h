// The one way the program reads and writes pictures (BMP, ICO, CUR, JPEG,
// GIF's first frame, PNG, TIFF, WebP through Qt's readers).
//
// Reading: only a regular file is opened. A photo stands as its EXIF
// orientation says, so every size the program works with is the upright
// one. A picture is refused by the size its header declares, before any
// decoding, when it has more than 100 megapixels or would take 512 MB or more
// at the depth it is stored in; a refused picture reads as no picture at
// all, like one that can't be read. Pictures of 16 bits a channel are
// decoded straight to 8 bits at the size asked for.
//
// Writing: the encoded picture replaces the file whole (staged, synced,
// renamed), upright and without an orientation tag.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace lumen {

inline constexpr qint64 kMostPicturePixels = 100'000'000;
inline constexpr qint64 kMostPictureBytes = 512'000'000;

// The upright size from the picture's header; empty when the picture can't
// be read or is refused.
QSize pictureSize(const QString& nativePath);

// The upright picture, at its own size or scaled to `size` (an upright
// size; decoded at that size where the format allows). Null when it can't be
// read or is refused.
QImage readPicture(const QString& nativePath, const QSize& size = QSize());

// Encodes the picture ("jpg", "png", "bmp") and writes it whole. False when
// the file couldn't be written; the old file is then untouched.
bool writePicture(const QImage& picture, const QString& nativePath, const char* format,
                  int quality = -1);

} // namespace lumen
