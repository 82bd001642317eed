// Helpers that give Qt widgets the properties the windows are written
// against: controls made under their names, geometry in twips and back and
// fore colours as BGR integers. The BGR value is kept on the widget, so that
// what was set can be read back exactly (tests read it too).
#pragma once

#include <QMargins>
#include <QRect>
#include <QString>
#include <QtGlobal>

#include <optional>
#include <utility>

class QPushButton;
class QWidget;

namespace lumen {

// A control made with its arguments and named, so that windows and tests
// find it by the name: named<QCheckBox>(name, caption, parent).
template <typename T, typename... Args> T* named(const QString& name, Args&&... args)
{
    auto* control = new T(std::forward<Args>(args)...);
    control->setObjectName(name);
    return control;
}

// A named command button that Enter pressed elsewhere in its window doesn't click.
QPushButton* commandButton(const QString& name, const QString& caption, QWidget* parent);

void setBackColor(QWidget* widget, qint32 bgr);
qint32 backColor(const QWidget* widget); // kColorGrey-like default: the value last set, or -1
void setForeColor(QWidget* widget, qint32 bgr);
qint32 foreColor(const QWidget* widget);

// A window's frame as the window manager drew it: the thickness of each side
// in pixels. None before the window is framed, and none while what the system
// reports can't be a frame: a window manager that has taken a window into a
// frame it hasn't sized yet gives sides thinner than nothing for a moment, and
// a size worked out from those would grow the window by its own size.
QMargins frameMargins(const QWidget* window);
// A window's outer rectangle on the screen, its frame included, in pixels.
QRect frameRect(const QWidget* window);
// Where windows may stand: the primary screen's area without its panels, in pixels.
QRect availableArea();

// Where a window's frame was last placed by the program, kept until the
// window manager has framed the window: a window placed before it has a
// frame may come to stand by its inside, its title bar above the screen, and
// is then placed again by its frame (FormBase does it).
std::optional<QPoint> askedFramePlace(const QWidget* window); // nothing when none waits
void clearAskedFramePlace(QWidget* window);

// Geometry in twips, relative to the parent (a window: its frame on the
// screen, inside the available area). A window is never placed larger than
// the available area.
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
