// The drawing properties of a classic picture box: the scale its drawing
// methods take lengths in, how a stroke meets the pixels under it, the pen,
// the fill, the current position and the font of printed text.
#pragma once

#include <QFont>
#include <QtGlobal>

namespace lumen {

inline constexpr qint16 kScaleTwips = 1;
inline constexpr qint16 kScalePixels = 3;

inline constexpr qint16 kDrawInvert = 6;   // each pixel under the stroke inverted
inline constexpr qint16 kDrawXorPen = 7;   // pen colour xor pixel
inline constexpr qint16 kDrawCopyPen = 13; // pen colour

inline constexpr qint16 kFillSolid = 0;
inline constexpr qint16 kFillTransparent = 1;

struct DrawSettings {
    qint16 ScaleMode = kScaleTwips;
    qint16 DrawMode = kDrawCopyPen;
    qint16 DrawWidth = 1; // pixels, whatever the scale
    qint32 ForeColor = 0; // BGR
    qint32 FillColor = 0; // BGR
    qint16 FillStyle = kFillTransparent;
    float CurrentX = 0; // in the scale
    float CurrentY = 0;
    QFont Font;
};

} // namespace lumen
