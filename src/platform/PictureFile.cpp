#include "platform/PictureFile.h"

#include "platform/PngRows.h"
#include "platform/RegularFile.h"
#include "platform/SafeFile.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QImageWriter>
#include <QTransform>

#include <algorithm>

#include <optional>

namespace lumen {
namespace {

// What the header of a picture tells before anything is decoded.
struct Header {
    QSize stored;                               // as the pixels are stored
    QImageIOHandler::Transformations transform; // to stand upright
    QImage::Format format = QImage::Format_Invalid;
    bool deepPng = false; // a PNG of 16 bits a channel

    bool turned() const { return transform & QImageIOHandler::TransformationRotate90; }
    QSize upright() const { return turned() ? stored.transposed() : stored; }
};

bool isDeep(QImage::Format format)
{
    switch (format) {
    case QImage::Format_RGBX64:
    case QImage::Format_RGBA64:
    case QImage::Format_RGBA64_Premultiplied:
    case QImage::Format_Grayscale16:
        return true;
    default:
        return false;
    }
}

qint64 bytesPerPixel(QImage::Format format)
{
    if (format == QImage::Format_Invalid)
        return 4;
    return std::max<qint64>(1, QImage::toPixelFormat(format).bitsPerPixel() / 8);
}

bool refused(const Header& header)
{
    if (!header.stored.isValid())
        return false; // the size shows only when decoded: Qt's own limit guards that
    const qint64 pixels = qint64(header.stored.width()) * header.stored.height();
    return pixels > kMostPicturePixels ||
           pixels * bytesPerPixel(header.format) >= kMostPictureBytes;
}

// The format named by the file's suffix, as the reader chooses a handler; the
// content decides when the suffix names none.
QByteArray formatOf(const QString& nativePath)
{
    return QFileInfo(nativePath).suffix().toLower().toLatin1();
}

std::optional<Header> readHeader(QImageReader& reader)
{
    Header header;
    header.stored = reader.size();
    header.transform = reader.transformation();
    header.format = reader.imageFormat();
    header.deepPng = reader.format() == "png" && isDeep(header.format);
    if (refused(header))
        return std::nullopt;
    return header;
}

// An 8-bit picture for a deep one that Qt read at its own depth.
QImage eightBits(QImage image)
{
    if (!isDeep(image.format()))
        return image;
    if (image.format() == QImage::Format_Grayscale16)
        return image.convertToFormat(QImage::Format_Grayscale8);
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32
                                                         : QImage::Format_RGB32);
}

// Mirrored, flipped, then turned a quarter clockwise, as the EXIF
// orientations are named in Qt's terms.
QImage upright(QImage image, QImageIOHandler::Transformations transform)
{
    if (transform == QImageIOHandler::TransformationNone)
        return image;
    const bool mirror = transform & QImageIOHandler::TransformationMirror;
    const bool flip = transform & QImageIOHandler::TransformationFlip;
    if (mirror || flip)
        image = image.mirrored(mirror, flip);
    if (transform & QImageIOHandler::TransformationRotate90)
        image = image.transformed(QTransform().rotate(90));
    return image;
}

} // namespace

QSize pictureSize(const QString& nativePath)
{
    QFile file;
    if (!openRegularFile(file, nativePath))
        return {};
    QImageReader reader(&file, formatOf(nativePath));
    const auto header = readHeader(reader);
    return header ? header->upright() : QSize();
}

QImage readPicture(const QString& nativePath, const QSize& size)
{
    QFile file;
    if (!openRegularFile(file, nativePath))
        return {};
    QImageReader reader(&file, formatOf(nativePath));
    reader.setAutoTransform(false); // turned here, after any scaling
    const auto header = readHeader(reader);
    if (!header)
        return {};
    // The reader scales the picture as it is stored, before it is turned.
    const QSize stored = header->turned() ? size.transposed() : size;
    QImage image;
    if (header->deepPng) {
        if (!file.seek(0))
            return {};
        image = readPngAt8Bits(file, stored);
    } else {
        if (!stored.isEmpty())
            reader.setScaledSize(stored);
        image = eightBits(reader.read());
    }
    return image.isNull() ? image : upright(std::move(image), header->transform);
}

bool writePicture(const QImage& picture, const QString& nativePath, const char* format, int quality)
{
    if (picture.isNull())
        return false;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    writer.setQuality(quality);
    if (!writer.write(picture))
        return false;
    buffer.close();
    return writeFileSafely(nativePath, bytes);
}

} // namespace lumen
