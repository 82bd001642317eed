// Turning to a 24-megapixel JPEG page (6000 by 4000, made here) in the normal
// layout: the time from CommandRight to the painted page, cold, against a
// bare full-size decode of the same file in the same run; then the flip with
// the next page prepared ahead; and the peak memory over 20 such pages.
#include "BigPictures.h"
#include "ProcStatus.h"
#include "display/PictureBox.h"
#include "display/PictureCache.h"
#include "list/CommandWords.h"
#include "platform/FormRegistry.h"
#include "show/FormMain.h"
#include "support/BasicsFixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QPushButton>
#include <QThread>

#include <algorithm>
#include <cstdio>

using namespace lumen;

namespace {

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
    const QByteArray jpeg = bench::bigJpeg(7);
    const int pages = 21;
    bench::writePictureShow(f.home, jpeg, 0, pages - 1);

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

    const long before = bench::statusKb("VmRSS");
    bench::resetPeak();

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
    const long peak = bench::statusKb("VmHWM");

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
