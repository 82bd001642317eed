#include "support/PictureSamples.h"

#include <QBuffer>
#include <QPainter>
#include <QtEndian>

#include <zlib.h>

namespace lumen::test {
namespace {

QByteArray bigEndian32(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray pngChunk(const char* type, const QByteArray& data)
{
    const QByteArray typed = QByteArray(type, 4) + data;
    const auto crc =
        quint32(crc32(0, reinterpret_cast<const Bytef*>(typed.constData()), uInt(typed.size())));
    return bigEndian32(quint32(data.size())) + typed + bigEndian32(crc);
}

// One row through a raw deflate stream of its own, ended on a byte boundary
// with no history behind it: such blocks may follow one another freely.
QByteArray deflatedAlone(const QByteArray& row)
{
    z_stream stream{};
    deflateInit2(&stream, 9, Z_DEFLATED, -15, 9, Z_DEFAULT_STRATEGY);
    QByteArray out(int(deflateBound(&stream, uLong(row.size()))) + 16, '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(row.constData()));
    stream.avail_in = uInt(row.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = uInt(out.size());
    deflate(&stream, Z_FULL_FLUSH);
    out.truncate(qsizetype(stream.total_out));
    deflateEnd(&stream);
    return out;
}

} // namespace

QByteArray jpegWithOrientation(const QImage& picture, int orientation)
{
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "JPG", 100);

    // "Exif", then a little-endian TIFF header and one directory with one
    // entry: tag 0x0112 (orientation), type SHORT, count 1.
    QByteArray exif = QByteArrayLiteral("Exif\0\0II\x2A\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0");
    exif += char(orientation);
    exif += QByteArray(7, '\0'); // the rest of the value, then no next directory
    QByteArray segment = QByteArrayLiteral("\xFF\xE1");
    segment += char((exif.size() + 2) >> 8);
    segment += char((exif.size() + 2) & 0xFF);
    segment += exif;
    // Behind the JFIF segment that follows the start of the picture.
    const int jfifEnd = 4 + ((uchar(jpeg[4]) << 8) | uchar(jpeg[5]));
    return jpeg.left(jfifEnd) + segment + jpeg.mid(jfifEnd);
}

QImage quarteredPicture()
{
    QImage picture(64, 32, QImage::Format_RGB32);
    QPainter paint(&picture);
    paint.fillRect(0, 0, 32, 16, Qt::red);
    paint.fillRect(32, 0, 32, 16, Qt::green);
    paint.fillRect(0, 16, 32, 16, Qt::blue);
    paint.fillRect(32, 16, 32, 16, Qt::yellow);
    return picture;
}

QByteArray uniformPng(int width, int height, int bitsPerChannel, quint8 grey)
{
    QByteArray header = bigEndian32(quint32(width)) + bigEndian32(quint32(height));
    header += char(bitsPerChannel);
    header += QByteArray("\x02\0\0\0", 4); // RGB, deflate, adaptive filters, not interlaced

    // Filter byte 0, then the samples.
    const QByteArray row =
        QByteArray(1, '\0') + QByteArray(qsizetype(width) * 3 * (bitsPerChannel / 8), char(grey));
    const QByteArray blocks = deflatedAlone(row);
    const uLong rowAdler =
        adler32(1, reinterpret_cast<const Bytef*>(row.constData()), uInt(row.size()));
    uLong adler = rowAdler;
    for (int y = 1; y < height; ++y)
        adler = adler32_combine(adler, rowAdler, z_off_t(row.size()));

    QByteArray stream = QByteArrayLiteral("\x78\x01");
    stream += blocks.repeated(height);
    stream += QByteArrayLiteral("\x01\0\0\xFF\xFF"); // the last block, stored and empty
    stream += bigEndian32(quint32(adler));

    return QByteArrayLiteral("\x89PNG\r\n\x1A\n") + pngChunk("IHDR", header) +
           pngChunk("IDAT", stream) + pngChunk("IEND", QByteArray());
}

} // namespace lumen::test
