// Auto Page forward through 50 pages of 24-megapixel JPEGs (6000 by 4000,
// made here) at an interval of 1 second, on the real clock: the whole walk,
// from CommandStart to the stop at its end, with the next page prepared
// ahead while the current one waits, against the same walk with preparation
// ahead switched off, in the same run. The target: at most 3 % over the 50
// seconds that the intervals alone take.
#include "BigPictures.h"
#include "display/PictureBox.h"
#include "display/PictureCache.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "platform/Clock.h"
#include "platform/FormRegistry.h"
#include "show/FormMain.h"
#include "show/FormOption.h"
#include "state/ProgramState.h"
#include "support/FakeBasicHost.h"
#include "support/FakeMedia.h"
#include "support/Fakes.h"
#include "support/TestHome.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QRadioButton>

#include <cstdio>

using namespace lumen;

namespace {

constexpr int kPages = 50;

struct Show {
    test::TestHome home;
    RealClock clock;
    test::FakeDialogs ui;
    test::FakeLauncher launcher;
    test::FakeMedia media;
    test::FakeBasicHost host;
    ProgramState state;
    Services services{clock, ui, launcher, home.fs, media};
    VeroProcedure_Basical basics{state, services, host};
    FormRegistry forms;
    FormMain main{basics, forms};
    FormOption option{basics, main};

    Show()
    {
        state.DataDir = QStringLiteral("C:\\Lumentas");
        state.ProgramRunDir = QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR");
        home.makeFolder(QStringLiteral("Lumentas/ForProgramRun_KDR"));
        PutCommandToArray(basics);
    }

    // The walk from the first page, cold: seconds.
    double walk(bool preparing)
    {
        main.pictures().clear();
        main.pictures().setPreparing(preparing);
        main.OpenFileList(QStringLiteral("C:\\show.lst"));
        option.showForm();
        option.OptionFowerd->setChecked(true);
        option.TextIntervalTime->setText(QStringLiteral("1"));
        QElapsedTimer timer;
        timer.start();
        option.CommandStart_Click();
        const double seconds = timer.nsecsElapsed() / 1e9;
        if (main.TextCount->text() != QString::number(kPages) || state.AutoPageOn)
            std::fprintf(stderr, "the walk didn't reach its last page\n");
        return seconds;
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    Show show;
    const QByteArray jpeg = bench::bigJpeg(11);
    bench::writePictureShow(show.home, jpeg, 1, kPages);
    show.main.resize(1200, 850);
    show.main.CheckQuiCkWork->setChecked(true);
    show.main.showForm();

    const double prepared = show.walk(true);
    const double cold = show.walk(false);
    const double intervals = kPages * 1.0;
    std::printf(
        "%d pages of 6000x4000 JPEG (%lld bytes each), interval 1 s, display area %dx%d px\n",
        kPages, qint64(jpeg.size()), show.main.Picture1->width(), show.main.Picture1->height());
    std::printf("prepared ahead:      %7.2f s   %+6.2f %% over %.0f s (target <= +3 %%)\n",
                prepared, (prepared / intervals - 1) * 100, intervals);
    std::printf("no preparation:      %7.2f s   %+6.2f %% over %.0f s\n", cold,
                (cold / intervals - 1) * 100, intervals);
    std::printf("loading per page:    %7.1f ms prepared, %.1f ms without\n",
                (prepared - intervals) * 1000 / kPages, (cold - intervals) * 1000 / kPages);
    return 0;
}
