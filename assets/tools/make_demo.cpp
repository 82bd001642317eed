// Makes the demo show's media: pictures drawn here, a chime synthesised here,
// a text page. Run it to remake assets/demo; the results are committed.
//   make_demo <folder>
#include "platform/TextCodec.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtEndian>

#include <cmath>

namespace {

QImage sunrise()
{
    QImage image(640, 420, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, 420);
    sky.setColorAt(0, QColor(40, 60, 140));
    sky.setColorAt(0.6, QColor(250, 150, 90));
    sky.setColorAt(1, QColor(255, 220, 150));
    p.fillRect(image.rect(), sky);
    QRadialGradient sun(320, 300, 90);
    sun.setColorAt(0, QColor(255, 250, 200));
    sun.setColorAt(1, QColor(255, 180, 60, 0));
    p.setBrush(sun);
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(320, 300), 90, 90);
    p.setBrush(QColor(30, 50, 70));
    p.drawRect(0, 330, 640, 90);
    return image;
}

QImage mountains()
{
    QImage image(800, 500, QImage::Format_RGB32);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, 500);
    sky.setColorAt(0, QColor(120, 180, 240));
    sky.setColorAt(1, QColor(220, 240, 255));
    p.fillRect(image.rect(), sky);
    const QColor ridges[] = {QColor(90, 110, 140), QColor(60, 90, 90), QColor(40, 70, 50)};
    for (int r = 0; r < 3; ++r) {
        QPainterPath path(QPointF(0, 500));
        for (int x = 0; x <= 800; x += 20)
            path.lineTo(x, 260 + r * 60 + 60 * std::sin(x / (70.0 + r * 30) + r));
        path.lineTo(800, 500);
        p.fillPath(path, ridges[r]);
    }
    return image;
}

QImage flower()
{
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(QColor(240, 240, 225));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(230, 90, 130));
    for (int i = 0; i < 8; ++i) {
        p.save();
        p.translate(100, 100);
        p.rotate(i * 45);
        p.drawEllipse(QRectF(-15, -66, 30, 60));
        p.restore();
    }
    p.setBrush(QColor(250, 200, 40));
    p.drawEllipse(QPointF(100, 100), 20, 20);
    return image;
}

// Taller than any screen: the option word shows it at its own size.
QImage tower()
{
    QImage image(700, 2000, QImage::Format_RGB32);
    QPainter p(&image);
    QLinearGradient sky(0, 0, 0, 2000);
    sky.setColorAt(0, QColor(10, 20, 60));
    sky.setColorAt(1, QColor(120, 170, 220));
    p.fillRect(image.rect(), sky);
    p.setBrush(QColor(200, 60, 40));
    p.setPen(QPen(Qt::white, 4));
    p.drawRect(300, 200, 100, 1800);
    for (int y = 300; y < 2000; y += 200)
        p.drawLine(300, y, 400, y);
    p.setFont(QFont(QStringLiteral("DejaVu Sans"), 40));
    p.drawText(QRect(0, 80, 700, 80), Qt::AlignCenter, QStringLiteral("TOP"));
    return image;
}

QImage night()
{
    QImage image(640, 420, QImage::Format_RGB32);
    image.fill(QColor(8, 10, 30));
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    quint32 seed = 7;
    for (int i = 0; i < 150; ++i) {
        seed = seed * 1103515245 + 12345;
        const int x = int(seed >> 8) % 640;
        seed = seed * 1103515245 + 12345;
        const int y = int(seed >> 8) % 300;
        p.setBrush(QColor(255, 255, 230, 120 + i % 130));
        p.drawEllipse(QPointF(x, y), 1.2 + (i % 3) * 0.6, 1.2 + (i % 3) * 0.6);
    }
    p.setBrush(QColor(250, 250, 210));
    p.drawEllipse(QPointF(500, 90), 40, 40);
    p.setBrush(QColor(8, 10, 30));
    p.drawEllipse(QPointF(518, 80), 38, 38);
    return image;
}

// A soft two-tone chime, 1.5 s, 22050 Hz mono 16-bit PCM.
QByteArray chime()
{
    const int rate = 22050;
    const int samples = rate * 3 / 2;
    QByteArray pcm(samples * 2, '\0');
    for (int i = 0; i < samples; ++i) {
        const double t = double(i) / rate;
        const double tone = t < 0.5 ? 880.0 : 660.0;
        const double start = t < 0.5 ? 0.0 : 0.5;
        const double envelope = std::exp(-(t - start) * 4.0);
        const double value = 0.5 * envelope * std::sin(2 * M_PI * tone * t);
        qToLittleEndian(qint16(value * 32767), pcm.data() + i * 2);
    }
    QByteArray wav("RIFF");
    auto put32 = [&wav](quint32 v) {
        char b[4];
        qToLittleEndian(v, b);
        wav.append(b, 4);
    };
    auto put16 = [&wav](quint16 v) {
        char b[2];
        qToLittleEndian(v, b);
        wav.append(b, 2);
    };
    put32(36 + pcm.size());
    wav += "WAVEfmt ";
    put32(16);
    put16(1);
    put16(1);
    put32(rate);
    put32(rate * 2);
    put16(2);
    put16(16);
    wav += "data";
    put32(pcm.size());
    return wav + pcm;
}

bool write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    if (argc < 2)
        return 2;
    const QString folder = QString::fromLocal8Bit(argv[1]) + QLatin1Char('/');
    bool ok = sunrise().save(folder + "sunrise.png") &&
              mountains().save(folder + "mountains.jpg", nullptr, 85) &&
              flower().save(folder + "flower.bmp") && tower().save(folder + "tower.png") &&
              night().save(folder + "night.jpg", nullptr, 85);
    ok = ok && write(folder + "chime.wav", chime());
    const QString notes = QStringLiteral("ルメンタのデモ\r\n"
                                         "\r\n"
                                         "このページはテキストのページです。\r\n"
                                         "リストの一行が一枚のページになります。\r\n"
                                         "画像、テキスト、音、MIDI、動画、Webページを並べて、\r\n"
                                         "→ で次のページへ、← で前のページへ進みます。\r\n"
                                         "\r\n"
                                         "「自動ﾍﾟｰｼﾞ」を押すと、ページが自動でめくられます。\r\n");
    ok = ok && write(folder + "notes.txt", lumen::text::encodeForFile(notes));
    return ok ? 0 : 1;
}
