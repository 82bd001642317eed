#include "settings/SetTargets.h"

#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/Fonts.h"

#include <QWidget>

namespace lumen {
namespace {

using basic::IsNumeric;
using basic::Val;

QWidget* target(const std::function<QWidget*()>& reach)
{
    return reach ? reach() : nullptr;
}

void applyFont(QWidget* widget, const FontColorSet& set)
{
    if (!widget)
        return;
    if (!set.fontName.isEmpty())
        widget->setFont(fontFrom(widget->font(), set.fontName, 0));
    if (IsNumeric(set.fontSize))
        widget->setFont(fontFrom(widget->font(), QString(), Val(set.fontSize)));
}

void applyColor(QWidget* widget, const QString& text, void (*setter)(QWidget*, qint32))
{
    if (widget && IsNumeric(text))
        setter(widget, bgrFromText(text));
}

} // namespace

void applySet(const SetTargets& targets, SetGroup group, const FontColorSet& set)
{
    switch (group) {
    case SetGroup::Comment: {
        QWidget* window = target(targets.commentWindow);
        QWidget* label = target(targets.commentLabel);
        applyFont(label, set);
        applyColor(window, set.firstColor, setBackColor);
        applyColor(label, set.secondColor, setForeColor);
        if (label)
            label->adjustSize();
        if (QWidget* overlay = target(targets.commentOverlay)) {
            applyFont(overlay, set);
            applyColor(overlay, set.firstColor, setBackColor);
            applyColor(overlay, set.secondColor, setForeColor);
        }
        return;
    }
    case SetGroup::Text: {
        QWidget* pane = target(targets.textPane);
        applyFont(pane, set);
        applyColor(pane, set.firstColor, setBackColor);
        applyColor(pane, set.secondColor, setForeColor);
        return;
    }
    case SetGroup::EditText:
        if (targets.smallControls) {
            for (QWidget* control : targets.smallControls())
                applyFont(control, set);
        }
        return;
    case SetGroup::PictBackCol:
        applyColor(target(targets.pictureArea), set.firstColor, setBackColor);
        return;
    }
}

} // namespace lumen
