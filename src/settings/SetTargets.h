// Where a font and colour set shows at once: the controls of the show that
// take each group, reached through functions that the application wires (a
// window that isn't loaded is loaded when it is touched).
#pragma once

#include "settings/FontColorSets.h"

#include <QList>
#include <functional>

class QWidget;

namespace lumen {

struct SetTargets {
    std::function<QWidget*()> commentWindow;        // FormComment: its ground
    std::function<QWidget*()> commentLabel;         // its label: font and letters
    std::function<QWidget*()> commentOverlay;       // FormMain's LabelComment: all three
    std::function<QWidget*()> textPane;             // FormMain's Text1
    std::function<QWidget*()> pictureArea;          // FormMain's Picture1
    std::function<QList<QWidget*>()> smallControls; // the boxes in the small font
};

// Puts a set on its group's controls. An empty or non-numeric size or colour
// is passed over, as its conversion would fail; the font name goes through
// the installed families. A picture-ground set colours the display area with
// its first colour.
void applySet(const SetTargets& targets, SetGroup group, const FontColorSet& set);

} // namespace lumen
