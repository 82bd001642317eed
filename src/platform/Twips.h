// Lengths on the screen are twips held as floats: 15 to a logical pixel,
// whatever the screen's DPI, and one picture pixel to a logical pixel.
#pragma once

#include <cmath>

namespace lumen {

inline constexpr int kTwipsPerPixel = 15;

inline int twipsToPixels(double twips)
{
    return int(std::lround(twips / kTwipsPerPixel));
}
inline float pixelsToTwips(int pixels)
{
    return float(pixels * kTwipsPerPixel);
}

} // namespace lumen
