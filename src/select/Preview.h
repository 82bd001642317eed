// The preview of a clicked picture in the selection window: which names
// are previewed, the picture read for a box of a given size, and where it
// stands in the box: as large as fits, centred, scaled and never cut.
#pragma once

#include <QImage>
#include <QRect>
#include <QSize>
#include <QString>

namespace lumen {

// A name whose capitals hold ".JPG", ".BMP" or ".PNG".
bool isPreviewName(const QString& file);

// The picture for a box of `box` pixels: decoded no larger than the box
// needs (JPEG straight at the smaller size), upright by its orientation tag.
// A null image when it can't be read, or when it declares more than 100
// million pixels.
QImage loadPreview(const QString& nativePath, const QSize& box);

// Where a picture of `picture` pixels is drawn in the box: filling the
// width when it is at least as wide as high, else the height, centred the
// other way; smaller still where that would cut it. Empty for an empty
// picture or box.
QRect previewRect(const QSize& picture, const QSize& box);

} // namespace lumen
