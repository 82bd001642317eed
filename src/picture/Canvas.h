// The drawing methods of the classic picture box, on the image a box draws
// on: lines from the current position, circles, filled boxes, the colour of
// a point and printed text. Lengths are in the box's scale (twips or
// pixels); the draw mode decides how a stroke meets the pixels under it:
// the pen's colour, the pen's colour xor the pixel, or the pixel inverted.
// Strokes are not smoothed, so that a stroke drawn twice in xor or invert
// leaves the pixels as they were.
#pragma once

#include "display/DrawSettings.h"

#include <QImage>
#include <QPainterPath>

namespace lumen {

class Canvas {
public:
    Canvas(QImage& surface, DrawSettings& settings);

    DrawSettings& settings() { return settings_; }

    // Line (x1, y1)-(x2, y2); the current position moves to the end.
    void Line(float x1, float y1, float x2, float y2);
    // Line -(x, y): from the current position.
    void LineTo(float x, float y);
    // Line (x, y)-Step(w, h), , BF: a box filled with the pen's colour.
    void Box(float x, float y, float w, float h);
    // Circle (x, y), r: filled with the fill colour when the fill is solid.
    void Circle(float x, float y, float radius);
    // The BGR colour of the pixel under (x, y); -1 outside the surface.
    qint32 Point(float x, float y) const;
    // Print: the text with its top at the current position; afterwards the
    // current position is at the start of the next line (x 0).
    void Print(const QString& text);

    int pixels(float length) const; // a length of the scale in pixels
    float fromPixels(int pixels) const;

private:
    void stroke(const QPainterPath& path, bool filled, qint32 fillBgr, bool outlined);

    QImage& surface_;
    DrawSettings& settings_;
};

} // namespace lumen
