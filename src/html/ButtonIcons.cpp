#include "html/ButtonIcons.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

namespace lumen {
namespace {

constexpr int kWidth = 48;
constexpr int kHeight = 32;

// A rounded blue key with a white figure on it.
QImage keyFace()
{
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    image.fill(QColor(0x80, 0x80, 0x80)); // the ground of a page of the default settings
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient face(0, 0, 0, kHeight);
    face.setColorAt(0.0, QColor(0x6A, 0x9C, 0xE6));
    face.setColorAt(1.0, QColor(0x1E, 0x4E, 0x9E));
    painter.setPen(QPen(QColor(0x10, 0x30, 0x60), 1.5));
    painter.setBrush(face);
    painter.drawRoundedRect(QRectF(1.5, 1.5, kWidth - 3, kHeight - 3), 7, 7);
    return image;
}

void drawTriangle(QPainter& painter, qreal tipX, qreal baseX)
{
    const qreal middle = kHeight / 2.0;
    painter.drawPolygon(
        QPolygonF({QPointF(tipX, middle), QPointF(baseX, middle - 9), QPointF(baseX, middle + 9)}));
}

void drawBar(QPainter& painter, qreal x)
{
    painter.drawRect(QRectF(x, kHeight / 2.0 - 9, 4, 18));
}

void drawHouse(QPainter& painter)
{
    const qreal middle = kWidth / 2.0;
    QPainterPath house;
    house.moveTo(middle, 6);
    house.lineTo(middle + 13, 16);
    house.lineTo(middle + 9, 16);
    house.lineTo(middle + 9, 26);
    house.lineTo(middle - 9, 26);
    house.lineTo(middle - 9, 16);
    house.lineTo(middle - 13, 16);
    house.closeSubpath();
    painter.drawPath(house);
}

} // namespace

QImage builtInButtonPicture(ButtonIcon icon)
{
    if (icon == ButtonIcon::Blank) {
        QImage blank(32, 32, QImage::Format_RGB32);
        blank.fill(Qt::white);
        return blank;
    }
    QImage image = keyFace();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    switch (icon) {
    case ButtonIcon::Left:
        drawTriangle(painter, 14, 32);
        break;
    case ButtonIcon::Right:
        drawTriangle(painter, 34, 16);
        break;
    case ButtonIcon::Head:
        drawBar(painter, 12);
        drawTriangle(painter, 17, 33);
        break;
    case ButtonIcon::Tail:
        drawTriangle(painter, 31, 15);
        drawBar(painter, 32);
        break;
    case ButtonIcon::Oya:
        drawHouse(painter);
        break;
    case ButtonIcon::Blank:
        break;
    }
    return image;
}

} // namespace lumen
