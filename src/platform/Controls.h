// Helpers that give Qt widgets the properties the windows are written
// against: geometry in twips and back and fore colours as BGR integers. The
// BGR value is kept on the widget, so that what was set can be read back
// exactly (tests read it too).
#pragma once

#include <QtGlobal>

class QWidget;

namespace lumen {

void setBackColor(QWidget* widget, qint32 bgr);
qint32 backColor(const QWidget* widget); // kColorGrey-like default: the value last set, or -1
void setForeColor(QWidget* widget, qint32 bgr);
qint32 foreColor(const QWidget* widget);

// Geometry in twips, relative to the parent (a window: its frame on the screen).
float twLeft(const QWidget* widget);
float twTop(const QWidget* widget);
float twWidth(const QWidget* widget);
float twHeight(const QWidget* widget);
void twMove(QWidget* widget, double left, double top);
void twMove(QWidget* widget, double left, double top, double width, double height);
void twResize(QWidget* widget, double width, double height);

// A window's inner size (ScaleWidth, ScaleHeight) in twips.
float twScaleWidth(const QWidget* window);
float twScaleHeight(const QWidget* window);

} // namespace lumen
