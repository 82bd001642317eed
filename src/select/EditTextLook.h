// The look of the edit text in the settings record (DispFontName,
// DispFontSize and its two colours: the first grounds the box, the second
// colours the letters), which the selection's boxes and the list editor's
// fields share.
#pragma once

#include <optional>

class QWidget;

namespace lumen {

struct DirecDataRecord;

// The record's font (at `pointSize` instead of its own size, when given)
// and colours on one control; a colour field that isn't a number leaves
// that colour as it was.
void applyEditTextLook(const DirecDataRecord& record, QWidget* control,
                       std::optional<double> pointSize = std::nullopt);

} // namespace lumen
