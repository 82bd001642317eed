#include "platform/Controls.h"

#include "platform/Colors.h"
#include "platform/Twips.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QVariant>
#include <QWidget>
#include <QWindow>

namespace lumen {
namespace {

constexpr const char* kBackColorProperty = "lumenBackColor";
constexpr const char* kForeColorProperty = "lumenForeColor";
constexpr const char* kFramePlaceProperty = "lumenFramePlace";

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

QMargins frameMargins(const QWidget* window)
{
    // The window system is asked itself: the widget's own idea of its frame
    // is renewed only when it moves.
    const QWindow* handle = window->windowHandle();
    const QMargins frame = handle ? handle->frameMargins() : QMargins();
    if (frame.left() < 0 || frame.top() < 0 || frame.right() < 0 || frame.bottom() < 0)
        return {};
    return frame;
}

QRect frameRect(const QWidget* window)
{
    return window->geometry().marginsAdded(frameMargins(window));
}

std::optional<QPoint> askedFramePlace(const QWidget* window)
{
    const QVariant place = window->property(kFramePlaceProperty);
    if (!place.isValid())
        return std::nullopt;
    return place.toPoint();
}

void clearAskedFramePlace(QWidget* window)
{
    window->setProperty(kFramePlaceProperty, QVariant());
}

QRect availableArea()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}

namespace {

// A window's frame placed at (left, top) with the outer size given, moved in
// as far as needed to lie inside the available area.
QPoint insideArea(int left, int top, const QSize& outer)
{
    const QRect area = availableArea();
    return {qBound(area.left(), left, area.right() + 1 - outer.width()),
            qBound(area.top(), top, area.bottom() + 1 - outer.height())};
}

// A window moved by its frame; remembered until the window manager frames it.
void moveFrame(QWidget* window, const QPoint& at)
{
    window->move(at);
    if (frameMargins(window).isNull())
        window->setProperty(kFramePlaceProperty, at);
    else
        clearAskedFramePlace(window);
}

} // namespace

float twLeft(const QWidget* widget)
{
    return pixelsToTwips(isTopLevel(widget) ? frameRect(widget).x() : widget->x());
}

float twTop(const QWidget* widget)
{
    return pixelsToTwips(isTopLevel(widget) ? frameRect(widget).y() : widget->y());
}

float twWidth(const QWidget* widget)
{
    return pixelsToTwips(isTopLevel(widget) ? frameRect(widget).width() : widget->width());
}

float twHeight(const QWidget* widget)
{
    return pixelsToTwips(isTopLevel(widget) ? frameRect(widget).height() : widget->height());
}

void twMove(QWidget* widget, double left, double top)
{
    if (isTopLevel(widget))
        moveFrame(widget,
                  insideArea(twipsToPixels(left), twipsToPixels(top), frameRect(widget).size()));
    else
        widget->move(twipsToPixels(left), twipsToPixels(top));
}

void twMove(QWidget* widget, double left, double top, double width, double height)
{
    const int w = qMax(0, twipsToPixels(width));
    const int h = qMax(0, twipsToPixels(height));
    if (isTopLevel(widget)) {
        // The outer rectangle is asked for, inside what the screen holds;
        // the frame's own thickness comes off.
        const QSize outer = QSize(w, h).boundedTo(availableArea().size());
        moveFrame(widget, insideArea(twipsToPixels(left), twipsToPixels(top), outer));
        widget->resize(outer.shrunkBy(frameMargins(widget)).expandedTo(QSize(0, 0)));
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
