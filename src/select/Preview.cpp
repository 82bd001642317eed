#include "select/Preview.h"

#include "platform/Basic.h"

#include <QImageReader>

#include <algorithm>

namespace lumen {

namespace {

constexpr qint64 kMostPixels = 100'000'000;

} // namespace

bool isPreviewName(const QString& file)
{
    const QString name = basic::UCase(file);
    return name.contains(QLatin1String(".JPG")) || name.contains(QLatin1String(".BMP")) ||
           name.contains(QLatin1String(".PNG"));
}

QImage loadPreview(const QString& nativePath, const QSize& box)
{
    QImageReader reader(nativePath);
    reader.setAutoTransform(true);
    QSize size = reader.size();
    if (!size.isValid() || qint64(size.width()) * size.height() > kMostPixels)
        return QImage();
    // The orientation tag may turn the picture on its side.
    if (reader.transformation() & QImageIOHandler::TransformationRotate90)
        size.transpose();
    const QRect placed = previewRect(size, box);
    if (placed.isEmpty())
        return QImage();
    if (placed.width() < size.width()) {
        QSize decoded = placed.size();
        if (reader.transformation() & QImageIOHandler::TransformationRotate90)
            decoded.transpose();
        reader.setScaledSize(decoded);
    }
    return reader.read();
}

QRect previewRect(const QSize& picture, const QSize& box)
{
    if (picture.isEmpty() || box.isEmpty())
        return QRect();
    // A wide picture fills the width, a tall one the height; where that
    // would cut the picture the other side decides: the smaller scale.
    const double scale =
        std::min(double(box.width()) / picture.width(), double(box.height()) / picture.height());
    const int width = std::max(1, int(picture.width() * scale + 0.5));
    const int height = std::max(1, int(picture.height() * scale + 0.5));
    return QRect((box.width() - width) / 2, (box.height() - height) / 2, width, height);
}

} // namespace lumen
