// The selection window listing in bulk, against plain tools in the same run:
//  - FileSelectQuick into Text1 over a tree of 5,110 folders and 25,555
//    files, against `find` of the same tree (target: within 3 times);
//    how soon CommandStop ends it, and the longest stretch without events
//    while it runs (targets: 100 ms);
//  - CommandAll on a folder of 20,000 files, against `ls -1` of it (target:
//    within 3 times); the folder change that fills File1 is timed apart.
// Each figure is a median of five runs, the tool and the window taking turns.
// Runs offscreen unless QT_QPA_PLATFORM says otherwise.
#include "BigTree.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Clock.h"
#include "platform/FileBoxes.h"
#include "platform/FormRegistry.h"
#include "select/FormSelectFile.h"
#include "select/RichTextBox.h"
#include "state/ProgramState.h"
#include "support/FakeBasicHost.h"
#include "support/FakeMedia.h"
#include "support/Fakes.h"
#include "support/TestHome.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QProcess>
#include <QPushButton>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

using namespace lumen;

namespace {

// The medians of two measures taken in turn, five times each after a round
// that warms the caches, so that both see the same load of the machine.
std::pair<double, double> pairedMedians(const std::function<double()>& first,
                                        const std::function<double()>& second)
{
    first();
    second();
    std::vector<double> a;
    std::vector<double> b;
    for (int round = 0; round < 5; ++round) {
        a.push_back(first());
        b.push_back(second());
    }
    std::sort(a.begin(), a.end());
    std::sort(b.begin(), b.end());
    return {a[2], b[2]};
}

// Milliseconds a tool takes, its output read whole, as a caller of it would.
double toolMs(const QString& program, const QStringList& arguments, qsizetype* lines = nullptr)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    process.setProcessEnvironment(environment);
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    process.waitForFinished(-1);
    const QByteArray output = process.readAllStandardOutput();
    const double ms = timer.nsecsElapsed() / 1e6;
    if (lines)
        *lines = output.count('\n');
    return ms;
}

double sinceMs(const QElapsedTimer& timer)
{
    return timer.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    test::TestHome home;
    RealClock clock;
    test::FakeDialogs ui;
    test::FakeLauncher launcher;
    test::FakeMedia media;
    test::FakeBasicHost host;
    ProgramState state;
    state.DataDir = QStringLiteral("C:\\Lumentas");
    state.ProgramRunDir = QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR");
    home.makeFolder(QStringLiteral("Lumentas/ForProgramRun_KDR"));
    Services services{clock, ui, launcher, home.fs, media};
    VeroProcedure_Basical basics(state, services, host);
    FormRegistry forms;
    forms.add(QStringLiteral("FormSelectFile"),
              [&]() -> FormBase* { return new FormSelectFile(basics, forms); });
    auto* select = static_cast<FormSelectFile*>(forms.form(QStringLiteral("FormSelectFile")));
    select->showForm();
    select->CheckAddToList->setChecked(false); // the tree alone goes into Text1
    select->CheckLumenta->setChecked(false);

    home.makeFolder(QStringLiteral("tree"));
    bench::makeBigTree(home.native(QStringLiteral("tree")));
    for (int i = 0; i < 20000; ++i)
        home.writeFile(QStringLiteral("many/picture %1.jpg").arg(i, 5, 10, QLatin1Char('0')), "x");

    // ---- FileSelectQuick against find
    qsizetype found = 0;
    select->Dir1->setPath(QStringLiteral("C:\\tree"));
    QString result;
    const auto [find, quick] =
        pairedMedians([&] { return toolMs(QStringLiteral("find"), {home.native("tree")}, &found); },
                      [&] {
                          QElapsedTimer timer;
                          timer.start();
                          select->FileSelectQuick(QString(), QStringLiteral("INC"),
                                                  QStringLiteral("DIR"), result);
                          return sinceMs(timer);
                      });
    const qsizetype listed = select->Text1->document()->blockCount() - 1;

    // The longest stretch without events, and CommandStop's answer.
    QElapsedTimer sinceTick;
    double longestGap = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] {
        longestGap = std::max(longestGap, sinceMs(sinceTick));
        sinceTick.restart();
    });
    ticker.start(5);
    sinceTick.start();
    select->FileSelectQuick(QString(), QStringLiteral("INC"), QStringLiteral("DIR"), result);
    ticker.stop();
    QElapsedTimer sinceStop;
    QTimer::singleShot(60, select->CommandStop, [&] {
        select->CommandStop->click();
        sinceStop.start();
    });
    const bool finished =
        select->FileSelectQuick(QString(), QStringLiteral("INC"), QStringLiteral("DIR"), result);
    const double stopMs = sinceStop.isValid() ? sinceMs(sinceStop) : -1;

    // ---- CommandAll against ls
    double boxMs = 0;
    const auto [ls, all] = pairedMedians(
        [&] {
            return toolMs(QStringLiteral("ls"), {"-1", home.native("many")});
        },
        [&] {
            QElapsedTimer timer;
            timer.start();
            select->Dir1->setPath(QStringLiteral("C:\\many"));
            boxMs = sinceMs(timer);
            select->Text1->setText(QString());
            timer.restart();
            select->CommandAll->click();
            const double ms = sinceMs(timer);
            select->Dir1->setPath(QStringLiteral("C:\\"));
            return ms;
        });

    std::printf("tree: %lld paths from find, %lld files listed into Text1\n",
                static_cast<long long>(found), static_cast<long long>(listed));
    std::printf("find                      %8.1f ms\n", find);
    std::printf("FileSelectQuick to Text1  %8.1f ms   ratio %.2f (target 3)\n", quick,
                quick / find);
    std::printf("longest stretch without events %6.1f ms (target 100)\n", longestGap);
    std::printf("CommandStop ends the walk in   %6.1f ms (target 100)%s\n", stopMs,
                finished ? "  -- the walk ended before the stop" : "");
    std::printf("ls -1 (20,000 files)      %8.1f ms\n", ls);
    std::printf("CommandAll to Text1       %8.1f ms   ratio %.2f (target 3)\n", all, all / ls);
    std::printf("File1 filled on the folder change %6.1f ms (apart)\n", boxMs);
    const bool met = quick / find <= 3 && all / ls <= 3 && stopMs >= 0 && stopMs <= 100 &&
                     longestGap <= 100 && listed == 25555;
    std::printf("%s\n", met ? "all targets met" : "a target missed");
    return met ? 0 : 1;
}
