// The flood fill of the paint tool, with the two kinds of the platform's
// fill: outward from a point up to pixels of a border colour, or over the
// connected surface of one colour that holds the point. Regions are
// 4-connected (a fill passes a one-pixel gap in a border, never a diagonal
// step). The fill runs along rows with a stack of its own, so that no
// picture is too large for it.
#pragma once

#include <QImage>

namespace lumen {

enum class FillType {
    Border = 0,  // up to the colour
    Surface = 1, // over the colour
};

// Fills `image` (32-bit) from (x, y) with `fill`, as ExtFloodFill does with
// the colour `colour`; colours are compared without their alpha. False when
// nothing was filled: the point is outside, on the border colour (Border) or
// not of the colour (Surface).
bool ExtFloodFill(QImage& image, int x, int y, QRgb colour, QRgb fill, FillType type);

} // namespace lumen
