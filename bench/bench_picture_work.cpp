// Picture work, measured in one run:
//  1. the flood fill of a 24-megapixel picture (one connected region round
//     small islands) against ImageMagick's fill of the same picture from the
//     same seed: its "floodfill" against our surface kind, its
//     "filltoborder" against our border kind. ImageMagick's time is that of
//     the command with the fill less that of the same command without it,
//     both reading the picture from its own memory-mapped cache;
//  2. the draw of a closed curve of 50 points at order 3 (what "仮OK" does)
//     on the demo picture, through the drawing window;
//  3. SaveKariPic of the demo picture with the ring full, against a bare PNG
//     write of the same picture: with the program's own pauses (the real
//     clock), and the work alone (a clock that jumps).
#include "display/PictureBox.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "picture/FloodFill.h"
#include "picture/FormModPic.h"
#include "picture/FormSaveImage.h"
#include "picture/PictureFiles.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "platform/Twips.h"
#include "show/FormMain.h"
#include "state/ProgramState.h"
#include "support/FakeBasicHost.h"
#include "support/FakeMedia.h"
#include "support/Fakes.h"
#include "support/TestHome.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QFile>
#include <QImageWriter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>

using namespace lumen;

namespace {

double bestMs(int rounds, const std::function<void()>& prepare, const std::function<void()>& run)
{
    double best = 1e12;
    for (int i = 0; i < rounds; ++i) {
        prepare();
        QElapsedTimer timer;
        timer.start();
        run();
        best = std::min(best, timer.nsecsElapsed() / 1e6);
    }
    return best;
}

// 6000 by 4000 white, with a black island of 3 by 3 pixels every 40 pixels
// each way: one connected white region whose rows are broken into runs.
QImage islands()
{
    QImage image(6000, 4000, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int y = 20; y < image.height(); y += 40)
        for (int x = 20; x < image.width(); x += 40)
            for (int dy = 0; dy < 3; ++dy)
                for (int dx = 0; dx < 3; ++dx)
                    image.setPixel(x + dx, y + dy, qRgb(0, 0, 0));
    return image;
}

double convertMs(const QStringList& arguments)
{
    return bestMs(
        3, [] {},
        [&] {
            QProcess process;
            process.start(QStringLiteral("convert"), arguments);
            process.waitForFinished(-1);
        });
}

void floodFill()
{
    const QImage source = islands();
    QTemporaryDir dir;
    const QString ppm = dir.filePath(QStringLiteral("islands.ppm"));
    const QString cache = dir.filePath(QStringLiteral("islands.mpc"));
    source.save(ppm);
    QProcess::execute(QStringLiteral("convert"), {ppm, cache});

    QImage image;
    const auto fresh = [&] { image = source.copy(); };
    const double surface = bestMs(3, fresh, [&] {
        ExtFloodFill(image, 0, 0, qRgb(255, 255, 255), qRgb(255, 0, 0), FillType::Surface);
    });
    const bool whole = image.pixel(5999, 3999) == qRgb(255, 0, 0);
    const double border = bestMs(3, fresh, [&] {
        ExtFloodFill(image, 0, 0, qRgb(0, 0, 0), qRgb(255, 0, 0), FillType::Border);
    });

    const double bare = convertMs({cache, QStringLiteral("null:")});
    const double magickSurface =
        convertMs({cache, QStringLiteral("-fill"), QStringLiteral("red"), QStringLiteral("-draw"),
                   QStringLiteral("color 0,0 floodfill"), QStringLiteral("null:")}) -
        bare;
    const double magickBorder =
        convertMs({cache, QStringLiteral("-fill"), QStringLiteral("red"),
                   QStringLiteral("-bordercolor"), QStringLiteral("black"), QStringLiteral("-draw"),
                   QStringLiteral("color 0,0 filltoborder"), QStringLiteral("null:")}) -
        bare;
    std::printf("flood fill, 6000x4000, one region round %d islands%s:\n", 150 * 100,
                whole ? "" : " (NOT WHOLE)");
    std::printf("  surface kind %.0f ms, ImageMagick floodfill %.0f ms: ratio %.2f (target <= 1)\n",
                surface, magickSurface, surface / magickSurface);
    std::printf(
        "  border kind  %.0f ms, ImageMagick filltoborder %.0f ms: ratio %.2f (target <= 1)\n",
        border, magickBorder, border / magickBorder);
    std::printf("  (ImageMagick reading its cache alone: %.0f ms)\n", bare);
}

// The program's windows on the demo picture, with the services given.
struct Program {
    test::TestHome home;
    test::FakeDialogs ui;
    test::FakeLauncher launcher;
    test::FakeBasicHost host;
    test::FakeMedia media;
    ProgramState state;
    Services services;
    VeroProcedure_Basical basics{state, services, host};
    FormRegistry forms;
    FormMain main{basics, forms};

    explicit Program(Clock& clock)
        : services{clock, ui, launcher, home.fs, media}
    {
        state.DataDir = QStringLiteral("C:\\Lumentas");
        state.ProgramRunDir = QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR");
        home.makeFolder(QStringLiteral("Lumentas/ForProgramRun_KDR"));
        PutCommandToArray(basics);
        forms.add(QStringLiteral("FormSaveImage"),
                  [this]() -> FormBase* { return new FormSaveImage(basics, main); });
        forms.add(QStringLiteral("FormModPic"),
                  [this]() -> FormBase* { return new FormModPic(basics, main, forms); });
        QFile::copy(QStringLiteral(LUMEN_DEMO_DIR "/sunrise.png"), home.native("sunrise.png"));
        home.writeFile(QStringLiteral("show.lst"), "C:\\sunrise.png\r\n");
        main.resize(1100, 750);
        main.CheckQuiCkWork->setChecked(true);
        main.CheckOriginalSize->setChecked(true);
        main.showForm();
        main.OpenFileList(QStringLiteral("C:\\show.lst"));
    }
    FormSaveImage& store()
    {
        return *static_cast<FormSaveImage*>(forms.form(QStringLiteral("FormSaveImage")));
    }
};

void closedCurve()
{
    test::FakeClock clock;
    Program p(clock);
    p.main.CommandModPic->click();
    auto& tool = *static_cast<FormModPic*>(p.forms.form(QStringLiteral("FormModPic")));
    tool.OptionSplineClose->setChecked(true);
    tool.CommandStartDrawLine->click();
    const QSize size = p.main.Picture2->pictureSize();
    for (int i = 0; i < 50; ++i) {
        const double angle = i * 2 * M_PI / 50;
        const int x = size.width() / 2 + int(size.width() * 0.4 * std::cos(angle));
        const int y = size.height() / 2 + int(size.height() * 0.4 * std::sin(angle));
        tool.Picture2_MouseDown(Qt::LeftButton, pixelsToTwips(x), pixelsToTwips(y));
    }
    const double draw = bestMs(
        5, [] {}, [&] { tool.CommandDoSpline->click(); });
    std::printf("closed curve of 50 points at order 3 on the demo picture (%dx%d), drawn with its "
                "marks: %.1f ms (target < 100 ms)\n",
                size.width(), size.height(), draw);
}

void ring()
{
    // A bare PNG write of the demo picture.
    const QImage demo(QStringLiteral(LUMEN_DEMO_DIR "/sunrise.png"));
    QTemporaryDir dir;
    const double bare = bestMs(
        5, [] {},
        [&] {
            QImageWriter writer(dir.filePath(QStringLiteral("bare.png")), "png");
            writer.write(demo);
        });

    struct Parts {
        double whole, shift, save, show;
    };
    auto store = [&](Clock& clock) {
        Program p(clock);
        FormSaveImage& ring = p.store();
        ring.load();
        for (int i = 0; i < 10; ++i) // the ring full: every store shifts nine
            ring.SaveKariPic();
        const auto once = [](const std::function<void()>& run) {
            return bestMs(
                5, [] {}, run);
        };
        Parts parts{};
        parts.whole = once([&] { ring.SaveKariPic(); });
        // Its steps one by one: the shift, the safe write, the display.
        const QString folder = p.state.ProgramRunDir;
        parts.shift = once([&] { shiftLastPics(p.basics, folder, ring.kariMax()); });
        const QImage shown = p.main.Picture2->Image();
        parts.save = once([&] { p.basics.SavePictureAsPNG(shown, lastPicFile(folder, 0)); });
        parts.show = once([&] { ring.CommandDisp_Click(); });
        return parts;
    };
    RealClock real;
    const Parts withPauses = store(real);
    test::FakeClock jumping;
    const Parts work = store(jumping);
    std::printf("SaveKariPic of the demo picture, ring of 10 full: %.1f ms with the program's "
                "pauses, %.1f ms of work; bare PNG write %.1f ms\n",
                withPauses.whole, work.whole, bare);
    std::printf("  ratio with pauses %.2f, work alone %.2f (target < 2)\n", withPauses.whole / bare,
                work.whole / bare);
    std::printf("  its steps, work alone: shift of nine %.1f ms, safe PNG write %.1f ms, "
                "display of the stored picture %.1f ms\n",
                work.shift, work.save, work.show);
    std::printf("  with the program's pauses: shift %.1f ms, write %.1f ms\n", withPauses.shift,
                withPauses.save);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    floodFill();
    closedCurve();
    ring();
    return 0;
}
