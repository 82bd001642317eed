// Draws the program's icon, a framed picture with the paging arrows, at the
// sizes of the hicolor theme. Run it to remake assets/desktop/icons; the
// results are committed.
//   make_icon <folder>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

// Drawn on a 256 by 256 plan, scaled to the size asked for.
QImage icon(int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 256.0, size / 256.0);

    // A second picture behind, turned a little.
    p.save();
    p.translate(136, 88);
    p.rotate(8);
    p.setPen(QPen(QColor(90, 90, 90), 6));
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(-88, -68, 176, 136), 10, 10);
    p.restore();

    // The picture on show: a sunrise over hills.
    p.setPen(QPen(QColor(64, 64, 64), 6));
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(20, 56, 196, 164), 12, 12);
    QLinearGradient sky(0, 70, 0, 190);
    sky.setColorAt(0, QColor(40, 64, 140));
    sky.setColorAt(0.65, QColor(250, 150, 90));
    sky.setColorAt(1, QColor(255, 220, 150));
    p.setPen(Qt::NoPen);
    p.fillRect(QRectF(34, 70, 168, 120), sky);
    p.setBrush(QColor(255, 250, 200));
    p.drawEllipse(QPointF(118, 158), 26, 26);
    QPainterPath hills;
    hills.moveTo(34, 190);
    hills.lineTo(84, 132);
    hills.lineTo(118, 170);
    hills.lineTo(150, 140);
    hills.lineTo(202, 190);
    hills.closeSubpath();
    p.fillPath(hills, QColor(30, 50, 70));

    // The arrows that page the show.
    p.setBrush(QColor(0, 128, 64));
    p.drawPolygon(QPolygonF({QPointF(238, 206), QPointF(206, 186), QPointF(206, 226)}));
    p.drawPolygon(QPolygonF({QPointF(160, 206), QPointF(192, 186), QPointF(192, 226)}));
    return image;
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc < 2)
        return 2;
    const QString folder = QString::fromLocal8Bit(argv[1]) + QLatin1Char('/');
    for (int size : {16, 24, 32, 48, 64, 128, 256}) {
        if (!icon(size).save(folder + QStringLiteral("lumenta-%1.png").arg(size)))
            return 1;
    }
    return 0;
}
