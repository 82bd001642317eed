#include "picture/Canvas.h"

#include "platform/Colors.h"
#include "platform/Twips.h"

#include <QFontMetrics>
#include <QPainter>

#include <cmath>

namespace lumen {

Canvas::Canvas(QImage& surface, DrawSettings& settings)
    : surface_(surface)
    , settings_(settings)
{}

int Canvas::pixels(float length) const
{
    const double value = settings_.ScaleMode == kScalePixels ? length : length / kTwipsPerPixel;
    return int(std::floor(value));
}

float Canvas::fromPixels(int pixels) const
{
    return settings_.ScaleMode == kScalePixels ? float(pixels) : float(pixels * kTwipsPerPixel);
}

void Canvas::stroke(const QPainterPath& path, bool filled, qint32 fillBgr, bool outlined)
{
    if (surface_.isNull())
        return;
    QPen pen(colorFromBgr(settings_.ForeColor), std::max<int>(1, settings_.DrawWidth),
             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (!outlined)
        pen = Qt::NoPen;
    const QBrush brush = filled ? QBrush(colorFromBgr(fillBgr)) : QBrush(Qt::NoBrush);
    const qint16 mode = settings_.DrawMode;
    if (mode != kDrawInvert && mode != kDrawXorPen) {
        QPainter painter(&surface_);
        painter.setPen(pen);
        painter.setBrush(brush);
        painter.drawPath(path);
        return;
    }
    // Xor and invert: the stroke's pixels are found on a mask of its own and
    // each is changed once.
    const int margin = std::max<int>(1, settings_.DrawWidth) + 2;
    const QRect area =
        path.boundingRect().toAlignedRect().adjusted(-margin, -margin, margin, margin);
    const QRect onSurface = area.intersected(surface_.rect());
    if (onSurface.isEmpty())
        return;
    QImage mask(onSurface.size(), QImage::Format_ARGB32_Premultiplied);
    mask.fill(Qt::transparent);
    {
        QPainter painter(&mask);
        painter.translate(-onSurface.topLeft());
        if (outlined)
            pen.setColor(Qt::black);
        painter.setPen(pen);
        painter.setBrush(filled ? QBrush(Qt::black) : QBrush(Qt::NoBrush));
        painter.drawPath(path);
    }
    const QRgb xorBits = colorFromBgr(settings_.ForeColor).rgb() & 0x00FFFFFFu;
    for (int y = 0; y < mask.height(); ++y) {
        const auto* marks = reinterpret_cast<const QRgb*>(mask.constScanLine(y));
        auto* line =
            reinterpret_cast<QRgb*>(surface_.scanLine(y + onSurface.top())) + onSurface.left();
        for (int x = 0; x < mask.width(); ++x) {
            if (qAlpha(marks[x]) == 0)
                continue;
            line[x] = mode == kDrawInvert ? (~line[x] | 0xFF000000u) : (line[x] ^ xorBits);
        }
    }
}

void Canvas::Line(float x1, float y1, float x2, float y2)
{
    const QPointF from(pixels(x1), pixels(y1));
    const QPointF to(pixels(x2), pixels(y2));
    if (from == to) {
        // A line to its own start is a dot of the pen's width.
        const double width = std::max<int>(1, settings_.DrawWidth);
        const double half = std::floor((width - 1) / 2);
        QPainterPath dot;
        dot.addRect(QRectF(from.x() - half, from.y() - half, width, width));
        stroke(dot, true, settings_.ForeColor, false);
    } else {
        QPainterPath path(from);
        path.lineTo(to);
        stroke(path, false, 0, true);
    }
    settings_.CurrentX = x2;
    settings_.CurrentY = y2;
}

void Canvas::LineTo(float x, float y)
{
    Line(settings_.CurrentX, settings_.CurrentY, x, y);
}

void Canvas::Box(float x, float y, float w, float h)
{
    QPainterPath path;
    const QPointF a(pixels(x), pixels(y));
    const QPointF b(pixels(x + w), pixels(y + h));
    path.addRect(QRectF(a, b).normalized());
    stroke(path, true, settings_.ForeColor, true);
    settings_.CurrentX = x + w;
    settings_.CurrentY = y + h;
}

void Canvas::Circle(float x, float y, float radius)
{
    QPainterPath path;
    const double r = settings_.ScaleMode == kScalePixels ? radius : radius / kTwipsPerPixel;
    path.addEllipse(QPointF(pixels(x), pixels(y)), r, r);
    stroke(path, settings_.FillStyle == kFillSolid, settings_.FillColor, true);
    settings_.CurrentX = x;
    settings_.CurrentY = y;
}

qint32 Canvas::Point(float x, float y) const
{
    const QPoint at(pixels(x), pixels(y));
    if (!surface_.valid(at))
        return -1;
    return bgrFromColor(QColor::fromRgb(surface_.pixel(at)));
}

void Canvas::Print(const QString& text)
{
    const QFontMetrics metrics(settings_.Font);
    if (!surface_.isNull() && !text.isEmpty()) {
        QPainter painter(&surface_);
        painter.setFont(settings_.Font);
        painter.setPen(colorFromBgr(settings_.ForeColor));
        painter.drawText(
            QPoint(pixels(settings_.CurrentX), pixels(settings_.CurrentY) + metrics.ascent()),
            text);
    }
    settings_.CurrentX = 0;
    settings_.CurrentY += fromPixels(metrics.height());
}

} // namespace lumen
