#include "select/EditTextLook.h"

#include "fileops/BasicText.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/Fonts.h"
#include "state/DirecData.h"

#include <QWidget>

namespace lumen {

void applyEditTextLook(const DirecDataRecord& record, QWidget* control,
                       std::optional<double> pointSize)
{
    const QString family = resolveFontFamily(FixedText(record.DispFontName));
    const double size = pointSize.value_or(basic::Val(FixedText(record.DispFontSize)));
    control->setFont(fontFrom(control->font(), family, size));
    const QString ground = FixedText(record.DispFontColor);
    const QString letters = FixedText(record.DispBackColor);
    if (basic::IsNumeric(ground))
        setBackColor(control, bgrFromText(ground));
    if (basic::IsNumeric(letters))
        setForeColor(control, bgrFromText(letters));
}

} // namespace lumen
