// PNG pictures of 16 bits a channel, read row by row straight to 8 bits a
// channel and averaged down to the size asked for while they are read, so
// that the deep picture is never held whole. Qt's own reader would hold it
// at 8 bytes a pixel and then make an 8-bit copy.
#pragma once

#include <QImage>
#include <QSize>

class QIODevice;

namespace lumen {

// Reads the PNG on `device` from its start: RGB32 or ARGB32 at `size`
// (empty: at its own size). Null when the file is damaged.
QImage readPngAt8Bits(QIODevice& device, const QSize& size);

} // namespace lumen
