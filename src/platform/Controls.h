// Helpers that give Qt widgets the properties the windows are written
// against: controls made under their names, geometry in twips and back and
// fore colours as BGR integers. The BGR value is kept on the widget, so that
// what was set can be read back exactly (tests read it too).
#pragma once

#include <QString>
#include <QtGlobal>

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
