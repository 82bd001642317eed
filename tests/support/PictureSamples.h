// Pictures made byte by byte for tests of the picture reader: photos with an
// EXIF orientation, and PNGs of any declared size made in milliseconds.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>

namespace lumen::test {

// A JPEG of the picture with an EXIF block holding only the orientation
// (1 to 8), as cameras write it.
QByteArray jpegWithOrientation(const QImage& picture, int orientation);

// A 64 by 32 picture in four colours, 32 by 16 pixels each (whole JPEG
// blocks, so that each corner keeps its colour): red top left, green top
// right, blue bottom left, yellow bottom right.
QImage quarteredPicture();

// A whole, valid PNG of one grey of the given size, 8 or 16 bits a channel,
// RGB: every row is the same, so that the deflate stream is one row's
// blocks repeated and a picture of 900 megapixels takes a few megabytes and
// a few milliseconds to make.
QByteArray uniformPng(int width, int height, int bitsPerChannel, quint8 grey = 0x80);

} // namespace lumen::test
