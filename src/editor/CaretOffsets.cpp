#include "editor/CaretOffsets.h"

#include <algorithm>

namespace lumen {

CaretOffsets::CaretOffsets(QStringView boxText)
{
    for (qsizetype at = boxText.indexOf(u'\n'); at >= 0; at = boxText.indexOf(u'\n', at + 1))
        breaks_.append(int(at));
}

int CaretOffsets::toCrLf(int boxPosition) const
{
    const auto before = std::lower_bound(breaks_.begin(), breaks_.end(), boxPosition);
    return boxPosition + int(before - breaks_.begin());
}

int CaretOffsets::toBox(int crLfOffset) const
{
    // The i-th break (from 0) starts at its box position + i in CR LF
    // counting; every pair that starts before the offset counts once.
    int low = 0;
    int high = int(breaks_.size());
    while (low < high) {
        const int middle = (low + high) / 2;
        if (breaks_[middle] + middle < crLfOffset)
            low = middle + 1;
        else
            high = middle;
    }
    return crLfOffset - low;
}

} // namespace lumen
