// What the paging benchmarks share: a 24-megapixel JPEG like a photograph,
// and a show whose pages are copies of it.
#pragma once

#include "support/TestHome.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>

namespace lumen::bench {

// 6000 by 4000, JPEG quality 90: a sky gradient under 4000 coloured discs
// placed by the seed.
inline QByteArray bigJpeg(quint32 seed)
{
    QImage image(6000, 4000, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 6000, 4000);
    sky.setColorAt(0, QColor(30, 60, 140));
    sky.setColorAt(1, QColor(240, 200, 120));
    painter.fillRect(image.rect(), sky);
    QRandomGenerator random(seed);
    for (int i = 0; i < 4000; ++i) {
        painter.setBrush(QColor::fromRgb(random.generate()));
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(QPointF(random.bounded(6000), random.bounded(4000)),
                            20 + random.bounded(60), 20 + random.bounded(60));
    }
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", 90);
    return bytes;
}

// Pages "p<first>.jpg" to "p<last>.jpg" (numbers of two digits) in the home,
// each a copy of the JPEG, and "show.lst" naming them in order.
inline void writePictureShow(const test::TestHome& home, const QByteArray& jpeg, int first,
                             int last)
{
    QByteArray list;
    for (int i = first; i <= last; ++i) {
        const QString name = QStringLiteral("p%1.jpg").arg(i, 2, 10, QLatin1Char('0'));
        home.writeFile(name, jpeg);
        list += "C:\\" + name.toLatin1() + "\r\n";
    }
    home.writeFile(QStringLiteral("show.lst"), list);
}

} // namespace lumen::bench
