// Turning to a 24-megapixel JPEG page (6000 by 4000, made here) in the normal
// layout: the time from CommandRight to the painted page, cold, against a
// bare full-size decode of the same file in the same run; then the flip with
// the next page prepared ahead; and the peak memory over 20 such pages.
#include "display/PictureBox.h"
#include "display/PictureCache.h"
#include "list/CommandWords.h"
#include "platform/FormRegistry.h"
#include "show/FormMain.h"
#include "support/BasicsFixture.h"

#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QPushButton>
#include <QRandomGenerator>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <string>

using namespace lumen;

namespace {

long statusKb(const char* key)
{
    std::ifstream status("/proc/self/status");
    std::string line;
    const std::string prefix = std::string(key) + ":";
    while (std::getline(status, line)) {
        if (line.rfind(prefix, 0) == 0)
            return std::stol(line.substr(prefix.size()));
    }
    return -1;
}

QByteArray bigJpeg()
{
    QImage image(6000, 4000, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 6000, 4000);
    sky.setColorAt(0, QColor(30, 60, 140));
    sky.setColorAt(1, QColor(240, 200, 120));
    painter.fillRect(image.rect(), sky);
    QRandomGenerator random(7);
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

double flipMs(FormMain& main)
{
    QElapsedTimer timer;
    timer.start();
    main.CommandRight->click();
    main.repaint(); // the page painted
    return timer.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    test::BasicsFixture f;
    PutCommandToArray(f.basics);
    const QByteArray jpeg = bigJpeg();
    QByteArray list;
    const int pages = 21;
    for (int i = 0; i < pages; ++i) {
        const QString name = QStringLiteral("p%1.jpg").arg(i, 2, 10, QLatin1Char('0'));
        f.home.writeFile(name, jpeg);
        list += "C:\\" + name.toLatin1() + "\r\n";
    }
    f.home.writeFile(QStringLiteral("show.lst"), list);

    FormRegistry forms;
    FormMain main(f.basics, forms);
    main.resize(1200, 850);
    main.CheckQuiCkWork->setChecked(true);
    main.showForm();

    // Bare full-size decode of one of the files.
    double bare = 1e9;
    for (int i = 0; i < 3; ++i) {
        QElapsedTimer timer;
        timer.start();
        QImageReader reader(f.home.native(QStringLiteral("p20.jpg")));
        const QImage image = reader.read();
        bare = std::min(bare, timer.nsecsElapsed() / 1e6);
        if (image.size() != QSize(6000, 4000))
            return 1;
    }

    const long before = statusKb("VmRSS");
    std::ofstream("/proc/self/clear_refs") << "5";

    // Cold pages: nothing prepared ahead.
    main.pictures().setPreparing(false);
    main.OpenFileList(QStringLiteral("C:\\show.lst"));
    double cold = 1e9;
    for (int i = 0; i < 4; ++i)
        cold = std::min(cold, flipMs(main));

    // Prepared pages: the next one decodes while the user looks at this one.
    main.pictures().setPreparing(true);
    main.CommandRight->click();
    double worst = 0;
    double sum = 0;
    int flips = 0;
    for (int i = 0; i < 14; ++i) {
        QThread::msleep(400); // looking at the page
        const double ms = flipMs(main);
        worst = std::max(worst, ms);
        sum += ms;
        ++flips;
    }
    const long peak = statusKb("VmHWM");

    std::printf("picture: 6000x4000 JPEG, %lld bytes; display area %dx%d px\n", qint64(jpeg.size()),
                main.Picture1->width(), main.Picture1->height());
    std::printf("bare full-size decode       %8.1f ms\n", bare);
    std::printf("cold page (click to paint)  %8.1f ms   ratio %.2f (target <= 1.2)\n", cold,
                cold / bare);
    std::printf("prepared flip: mean %.1f ms, worst %.1f ms over %d flips (target < 50 ms)\n",
                sum / flips, worst, flips);
    std::printf("peak memory while paging %d pages: %.0f MB (%.0f MB before) (target < 600 MB)\n",
                pages, peak / 1024.0, before / 1024.0);
    return 0;
}
