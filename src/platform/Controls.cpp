#include "platform/Controls.h"

#include "platform/Colors.h"
#include "platform/Twips.h"

#include <QPushButton>
#include <QVariant>
#include <QWidget>

namespace lumen {
namespace {

constexpr const char* kBackColorProperty = "lumenBackColor";
constexpr const char* kForeColorProperty = "lumenForeColor";

qint32 storedColor(const QWidget* widget, const char* property)
{
    const QVariant value = widget->property(property);
    return value.isValid() ? value.toInt() : -1;
}

bool isTopLevel(const QWidget* widget)
{
    return widget->isWindow();
}

} // namespace

QPushButton* commandButton(const QString& name, const QString& caption, QWidget* parent)
{
    auto* button = named<QPushButton>(name, caption, parent);
    button->setAutoDefault(false);
    return button;
}

void setBackColor(QWidget* widget, qint32 bgr)
{
    widget->setProperty(kBackColorProperty, bgr);
    QPalette palette = widget->palette();
    const QColor color = colorFromBgr(bgr);
    palette.setColor(QPalette::Window, color);
    if (!widget->isWindow()) {
        // A window's ground doesn't pass on to its buttons and text boxes.
        palette.setColor(QPalette::Button, color);
        palette.setColor(QPalette::Base, color);
    }
    widget->setPalette(palette);
    widget->setAutoFillBackground(true);
}

qint32 backColor(const QWidget* widget)
{
    return storedColor(widget, kBackColorProperty);
}

void setForeColor(QWidget* widget, qint32 bgr)
{
    widget->setProperty(kForeColorProperty, bgr);
    QPalette palette = widget->palette();
    const QColor color = colorFromBgr(bgr);
    palette.setColor(QPalette::WindowText, color);
    palette.setColor(QPalette::ButtonText, color);
    palette.setColor(QPalette::Text, color);
    widget->setPalette(palette);
}

qint32 foreColor(const QWidget* widget)
{
    return storedColor(widget, kForeColorProperty);
}

float twLeft(const QWidget* widget)
{
    return pixelsToTwips(isTopLevel(widget) ? widget->frameGeometry().x() : widget->x());
}

float twTop(const QWidget* widget)
{
    return pixelsToTwips(isTopLevel(widget) ? widget->frameGeometry().y() : widget->y());
}

float twWidth(const QWidget* widget)
{
    return pixelsToTwips(isTopLevel(widget) ? widget->frameGeometry().width() : widget->width());
}

float twHeight(const QWidget* widget)
{
    return pixelsToTwips(isTopLevel(widget) ? widget->frameGeometry().height() : widget->height());
}

void twMove(QWidget* widget, double left, double top)
{
    widget->move(twipsToPixels(left), twipsToPixels(top));
}

void twMove(QWidget* widget, double left, double top, double width, double height)
{
    const int w = qMax(0, twipsToPixels(width));
    const int h = qMax(0, twipsToPixels(height));
    if (isTopLevel(widget)) {
        // The outer size is asked for; the frame's own thickness comes off.
        const QSize frame = widget->frameGeometry().size() - widget->geometry().size();
        widget->move(twipsToPixels(left), twipsToPixels(top));
        widget->resize(qMax(0, w - frame.width()), qMax(0, h - frame.height()));
        return;
    }
    widget->setGeometry(twipsToPixels(left), twipsToPixels(top), w, h);
}

void twResize(QWidget* widget, double width, double height)
{
    twMove(widget, twLeft(widget), twTop(widget), width, height);
}

float twScaleWidth(const QWidget* window)
{
    return pixelsToTwips(window->width());
}
float twScaleHeight(const QWidget* window)
{
    return pixelsToTwips(window->height());
}

} // namespace lumen
