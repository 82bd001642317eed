#include "picture/FloodFill.h"

#include <vector>

namespace lumen {
namespace {

constexpr QRgb kColourBits = 0x00FFFFFFu;

struct Seed {
    int x;
    int y;
};

// The fill proper: `open(row, x, y)` tells whether a pixel is still to be
// filled, `take(row, x, y)` fills it. Each seed is widened to the whole run
// of open pixels on its row; the rows above and below then give one seed
// for each run of open pixels beside it.
template <class Open, class Take> void fillRuns(QImage& image, Seed start, Open open, Take take)
{
    const int width = image.width();
    const int height = image.height();
    std::vector<Seed> stack{start};
    while (!stack.empty()) {
        const Seed seed = stack.back();
        stack.pop_back();
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(seed.y));
        if (!open(row, seed.x, seed.y))
            continue;
        int left = seed.x;
        while (left > 0 && open(row, left - 1, seed.y))
            --left;
        int right = seed.x;
        while (right < width - 1 && open(row, right + 1, seed.y))
            ++right;
        for (int x = left; x <= right; ++x)
            take(row, x, seed.y);
        for (const int y : {seed.y - 1, seed.y + 1}) {
            if (y < 0 || y >= height)
                continue;
            const auto* next = reinterpret_cast<QRgb*>(image.scanLine(y));
            bool inRun = false;
            for (int x = left; x <= right; ++x) {
                const bool isOpen = open(next, x, y);
                if (isOpen && !inRun)
                    stack.push_back({x, y});
                inRun = isOpen;
            }
        }
    }
}

} // namespace

bool ExtFloodFill(QImage& image, int x, int y, QRgb colour, QRgb fill, FillType type)
{
    if (image.isNull() || !image.valid(x, y))
        return false;
    if (image.depth() != 32)
        image = image.convertToFormat(QImage::Format_RGB32);
    const QRgb key = colour & kColourBits;
    const QRgb paint = fill | 0xFF000000u;
    const QRgb seedColour = image.pixel(x, y) & kColourBits;
    const bool onKey = seedColour == key;
    if (type == FillType::Border ? onKey : !onKey)
        return false;

    if (type == FillType::Surface) {
        if ((fill & kColourBits) == key)
            return true; // the surface is that colour already
        // A filled pixel is no longer of the colour: it closes itself.
        fillRuns(
            image, {x, y},
            [key](const QRgb* row, int at, int) { return (row[at] & kColourBits) == key; },
            [paint](QRgb* row, int at, int) { row[at] = paint; });
        return true;
    }
    if ((fill & kColourBits) == key) {
        // Filled with the border's own colour, a pixel becomes border.
        fillRuns(
            image, {x, y},
            [key](const QRgb* row, int at, int) { return (row[at] & kColourBits) != key; },
            [paint](QRgb* row, int at, int) { row[at] = paint; });
        return true;
    }
    // Otherwise a filled pixel still differs from the border: marks keep
    // the fill from coming back to it.
    const qsizetype width = image.width();
    std::vector<quint8> filled(size_t(width) * size_t(image.height()), 0);
    fillRuns(
        image, {x, y},
        [key, &filled, width](const QRgb* row, int at, int line) {
            return (row[at] & kColourBits) != key && !filled[size_t(line * width + at)];
        },
        [paint, &filled, width](QRgb* row, int at, int line) {
            row[at] = paint;
            filled[size_t(line * width + at)] = 1;
        });
    return true;
}

} // namespace lumen
