// FormFileOption copying the 1,000 pictures of a list at once ("一気に
//実行", every file, plain copy), against cp of the same files into a folder
// of its own, in the same run. The pictures are the demo show's four, at
// their size, over and over. The window's fixed waits are left out through
// a clock that jumps; everything else (the walk, its events, the window's
// boxes, the copies with their safety) is measured. Each round copies into
// fresh folders after a sync; the best of the rounds is taken for each,
// both as time on the clock and as processor time (user and system, the
// program's own and cp's as a child), which others' work on a shared
// machine disturbs less. The target: FormFileOption within 2 times cp.
#include "fileops/FormFileOption.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/FileBoxes.h"
#include "platform/FormRegistry.h"
#include "state/ProgramState.h"
#include "support/FakeBasicHost.h"
#include "support/FakeMedia.h"
#include "support/Fakes.h"
#include "support/TestHome.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>
#include <cstdio>
#include <sys/resource.h>

using namespace lumen;

namespace {

constexpr int kFiles = 1000;
constexpr int kRounds = 9;

// Processor time, user and system, in milliseconds: the process's own or
// that of its children that have ended.
double cpuMs(int who)
{
    rusage usage{};
    ::getrusage(who, &usage);
    const auto ms = [](const timeval& t) { return t.tv_sec * 1e3 + t.tv_usec / 1e3; };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

struct Times {
    double wall = 1e12;
    double cpu = 1e12;
    void take(double w, double c)
    {
        wall = std::min(wall, w);
        cpu = std::min(cpu, c);
    }
};

struct Bench {
    test::TestHome home;
    test::FakeClock clock;
    test::FakeDialogs ui;
    test::FakeLauncher launcher;
    test::FakeMedia media;
    test::FakeBasicHost host;
    ProgramState state;
    Services services{clock, ui, launcher, home.fs, media};
    VeroProcedure_Basical basics{state, services, host};
    FormRegistry forms;
    FormFileOption* window = new FormFileOption(basics, forms);
    QStringList natives;
    qint64 bytes = 0;

    Bench()
    {
        state.DataDir = QStringLiteral("C:\\Lumentas");
        state.ProgramRunDir = QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR");
        home.makeFolder(QStringLiteral("Lumentas/ForProgramRun_KDR"));
        forms.add(QStringLiteral("FormFileOption"), [this] { return window; });
        const QStringList demo = {QStringLiteral("sunrise.png"), QStringLiteral("mountains.jpg"),
                                  QStringLiteral("night.jpg"), QStringLiteral("flower.bmp")};
        home.makeFolder(QStringLiteral("src"));
        state.ListArray.redim(kListColumns, kFiles + 1);
        for (int i = 0; i < kFiles; ++i) {
            const QString demoFile = demo[i % demo.size()];
            const QString name = QStringLiteral("p%1.%2")
                                     .arg(i + 1, 4, 10, QLatin1Char('0'))
                                     .arg(QFileInfo(demoFile).suffix());
            const QString native = home.native(QStringLiteral("src/") + name);
            QFile::copy(QStringLiteral(LUMEN_DEMO_DIR "/") + demoFile, native);
            natives << native;
            bytes += QFileInfo(native).size();
            state.ListArray.set(kColMain, i + 1, QStringLiteral("C:\\src\\") + name);
        }
        window->links.mainFileName = [] { return QStringLiteral("C:\\src\\p0001.png"); };
        window->links.listTotal = [] { return QString::number(kFiles); };
        window->links.takeMainAction = [] {};
        window->showForm();
        window->OptionJustCopy->click();
        window->OptionDoAll->click();
    }

    static void sync() { QProcess::execute(QStringLiteral("sync"), {}); }

    void formFileOption(int round, Times& times)
    {
        const QString folder = QStringLiteral("out%1").arg(round);
        home.makeFolder(folder);
        window->Dir1->setPath(QStringLiteral("C:\\") + folder);
        sync();
        const double cpu = cpuMs(RUSAGE_SELF);
        QElapsedTimer timer;
        timer.start();
        window->CommandDo->click();
        times.take(timer.nsecsElapsed() / 1e6, cpuMs(RUSAGE_SELF) - cpu);
        if (QDir(home.native(folder)).entryList(QDir::Files).size() != kFiles)
            std::printf("FormFileOption copied too few files\n");
    }

    void cp(int round, Times& times)
    {
        const QString folder = home.native(QStringLiteral("cp%1").arg(round));
        QDir().mkpath(folder);
        sync();
        const double cpu = cpuMs(RUSAGE_CHILDREN);
        QElapsedTimer timer;
        timer.start();
        QProcess::execute(QStringLiteral("cp"), QStringList(natives) << folder);
        times.take(timer.nsecsElapsed() / 1e6, cpuMs(RUSAGE_CHILDREN) - cpu);
        if (QDir(folder).entryList(QDir::Files).size() != kFiles)
            std::printf("cp copied too few files\n");
    }
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    Bench bench;
    Times ours;
    Times theirs;
    // Turn about: a file system's work for a new file depends on what was
    // made just before.
    for (int round = 0; round < kRounds; ++round) {
        if (round % 2 == 0) {
            bench.cp(round, theirs);
            bench.formFileOption(round, ours);
        } else {
            bench.formFileOption(round, ours);
            bench.cp(round, theirs);
        }
    }
    std::printf("files: %d pictures of the demo size, %.1f MB in all\n", kFiles,
                double(bench.bytes) / 1e6);
    std::printf("best of %d rounds        clock      processor\n", kRounds);
    std::printf("cp:               %9.1f ms %9.1f ms\n", theirs.wall, theirs.cpu);
    std::printf("FormFileOption:   %9.1f ms %9.1f ms  (waits left out: %lld ms a run)\n", ours.wall,
                ours.cpu, bench.clock.totalWaited() / kRounds);
    std::printf("ratio:            %9.2f    %9.2f     (target: at most 2)\n",
                ours.wall / theirs.wall, ours.cpu / theirs.cpu);
    return ours.wall / theirs.wall <= 2.0 ? 0 : 1;
}
