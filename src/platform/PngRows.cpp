#include "platform/PngRows.h"

#include <QIODevice>

#include <csetjmp>
#include <png.h>
#include <vector>

namespace lumen {
namespace {

// What the libpng steps work on. It lives outside the function that calls
// setjmp, so that nothing of it is lost when libpng jumps back on an error.
struct Decode {
    png_structp png = nullptr;
    png_infop info = nullptr;
    QSize source;
    QSize target;
    bool alpha = false;
    QImage image;                   // the result
    std::vector<png_byte> row;      // one source row, 4 bytes a pixel
    std::vector<quint64> sums;      // per target pixel and channel
    std::vector<quint32> columnOf;  // target column of each source column
    std::vector<quint32> perColumn; // source columns in each target column
    std::vector<png_bytep> rows;    // the rows of a picture read whole
};

void readData(png_structp png, png_bytep data, size_t length)
{
    auto* device = static_cast<QIODevice*>(png_get_io_ptr(png));
    while (length > 0) {
        const qint64 got = device->read(reinterpret_cast<char*>(data), qint64(length));
        if (got <= 0)
            png_error(png, "the file ends early");
        data += got;
        length -= size_t(got);
    }
}

void onError(png_structp png, png_const_charp)
{
    std::longjmp(png_jmpbuf(png), 1);
}

void onWarning(png_structp, png_const_charp) {}

// Header and transformations: 8 bits a channel, blue green red, a fourth
// byte that is alpha or filler.
void readHeader(Decode& d)
{
    png_read_info(d.png, d.info);
    d.source =
        QSize(int(png_get_image_width(d.png, d.info)), int(png_get_image_height(d.png, d.info)));
    const int colour = png_get_color_type(d.png, d.info);
    d.alpha = (colour & PNG_COLOR_MASK_ALPHA) || png_get_valid(d.png, d.info, PNG_INFO_tRNS);
    png_set_scale_16(d.png);
    png_set_expand(d.png);
    png_set_gray_to_rgb(d.png);
    if (!d.alpha)
        png_set_filler(d.png, 0xff, PNG_FILLER_AFTER);
    png_set_bgr(d.png);
}

// A picture drawn in passes is read whole at 8 bits and then scaled.
void readInterlaced(Decode& d)
{
    png_set_interlace_handling(d.png);
    png_read_update_info(d.png, d.info);
    const QImage::Format format = d.alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32;
    d.image = QImage(d.source, format);
    if (d.image.isNull())
        png_error(d.png, "no memory");
    d.rows.resize(size_t(d.source.height()));
    for (int y = 0; y < d.source.height(); ++y)
        d.rows[size_t(y)] = d.image.scanLine(y);
    png_read_image(d.png, d.rows.data());
}

// Each source pixel counts once towards the target pixel that covers it.
void flushRow(Decode& d, int targetRow, quint32 sourceRows)
{
    auto* out = reinterpret_cast<uchar*>(d.image.scanLine(targetRow));
    for (int x = 0; x < d.target.width(); ++x) {
        const quint64 count = quint64(d.perColumn[size_t(x)]) * sourceRows;
        for (int c = 0; c < 4; ++c) {
            quint64& sum = d.sums[size_t(x) * 4 + size_t(c)];
            out[x * 4 + c] = uchar(count ? sum / count : 0);
            sum = 0;
        }
    }
}

void readScaled(Decode& d)
{
    png_read_update_info(d.png, d.info);
    const int w = d.source.width();
    const int h = d.source.height();
    const int tw = d.target.width();
    const int th = d.target.height();
    d.image = QImage(d.target, d.alpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    if (d.image.isNull())
        png_error(d.png, "no memory");
    d.row.assign(size_t(w) * 4, 0);
    d.sums.assign(size_t(tw) * 4, 0);
    d.columnOf.resize(size_t(w));
    d.perColumn.assign(size_t(tw), 0);
    for (int x = 0; x < w; ++x) {
        d.columnOf[size_t(x)] = quint32(qint64(x) * tw / w);
        ++d.perColumn[d.columnOf[size_t(x)]];
    }
    int current = 0;
    quint32 rowsInCurrent = 0;
    for (int y = 0; y < h; ++y) {
        const int targetRow = int(qint64(y) * th / h);
        if (targetRow != current) {
            flushRow(d, current, rowsInCurrent);
            current = targetRow;
            rowsInCurrent = 0;
        }
        png_read_row(d.png, d.row.data(), nullptr);
        for (int x = 0; x < w; ++x) {
            quint64* sum = &d.sums[size_t(d.columnOf[size_t(x)]) * 4];
            const png_byte* pixel = &d.row[size_t(x) * 4];
            for (int c = 0; c < 4; ++c)
                sum[c] += pixel[c];
        }
        ++rowsInCurrent;
    }
    flushRow(d, current, rowsInCurrent);
}

// Runs the libpng steps; false when libpng reported an error. Nothing here
// has to be cleaned up when it jumps back.
bool decodeGuarded(Decode& d)
{
    if (setjmp(png_jmpbuf(d.png)))
        return false;
    readHeader(d);
    if (d.target.isEmpty() || d.target.width() > d.source.width() ||
        d.target.height() > d.source.height())
        d.target = d.source;
    if (png_get_interlace_type(d.png, d.info) != PNG_INTERLACE_NONE)
        readInterlaced(d);
    else
        readScaled(d);
    return true;
}

} // namespace

QImage readPngAt8Bits(QIODevice& device, const QSize& size)
{
    Decode d;
    d.target = size;
    d.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, onError, onWarning);
    if (!d.png)
        return {};
    d.info = png_create_info_struct(d.png);
    png_set_read_fn(d.png, &device, readData);
    const bool ok = d.info && decodeGuarded(d);
    png_destroy_read_struct(&d.png, d.info ? &d.info : nullptr, nullptr);
    if (!ok)
        return {};
    if (d.image.size() != d.target && !d.target.isEmpty())
        return d.image.scaled(d.target, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return d.image;
}

} // namespace lumen
