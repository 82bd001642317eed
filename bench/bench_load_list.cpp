// Loading a 32,000-line list with items on every line into FormMain, quick
// mode on, against a plain read of the same file in the same run. The
// program's own fixed waits are left out: a jumping clock counts them.
#include "fileops/FormStop.h"
#include "fileops/FormsBasicHost.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "platform/FormRegistry.h"
#include "platform/TextCodec.h"
#include "show/FormMain.h"
#include "state/ProgramState.h"
#include "support/FakeMedia.h"
#include "support/Fakes.h"
#include "support/TestHome.h"

#include <QApplication>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>

#include <cstdio>

using namespace lumen;

namespace {

QByteArray makeList(int lines)
{
    QString text;
    for (int i = 1; i <= lines; ++i) {
        text +=
            QStringLiteral("C:\\写真\\旅行\\京都_%1.jpg @WITH=C:\\音\\鐘_%1.wav ENDWITH @DELAY=5 "
                           "ENDDELAY @COMMENT=<<<<<清水寺<<<<<朝 ENDCOMMENT @OPTION=PICTURESCROLL "
                           "ENDOPTION\r\n")
                .arg(i, 5, 10, QLatin1Char('0'));
    }
    return text::encodeForFile(text);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    test::TestHome home;
    test::FakeClock clock;
    test::FakeDialogs ui;
    test::FakeLauncher launcher;
    ProgramState state;
    state.DataDir = QStringLiteral("C:\\Lumentas");
    state.ProgramRunDir = QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR");
    home.makeFolder(QStringLiteral("Lumentas/ForProgramRun_KDR"));
    test::FakeMedia media;
    Services services{clock, ui, launcher, home.fs, media};
    FormStop stop(state);
    FormsBasicHost host(stop);
    VeroProcedure_Basical basics(state, services, host);
    FormRegistry forms;
    FormMain main(basics, forms);
    main.resize(1000, 700);
    main.CheckQuiCkWork->setChecked(true);
    PutCommandToArray(basics);

    const int lines = 32000;
    const QByteArray list = makeList(lines);
    const QString native = home.writeFile(QStringLiteral("show.lst"), list);

    double plain = 1e9;
    double byLines = 1e9;
    double load = 1e9;
    for (int run = 0; run < 5; ++run) {
        QElapsedTimer timer;
        timer.start();
        QFile in(native);
        in.open(QIODevice::ReadOnly);
        const QString text = text::decode(in.readAll());
        plain = qMin(plain, timer.nsecsElapsed() / 1e6);

        // The same file read line by line into a list of texts.
        timer.restart();
        QFile again(native);
        again.open(QIODevice::ReadOnly);
        const QStringList lineList = text::splitLines(text::decode(again.readAll()));
        byLines = qMin(byLines, timer.nsecsElapsed() / 1e6);
        if (lineList.size() != lines)
            return 1;

        clock.waits.clear();
        timer.restart();
        main.OpenFileList(QStringLiteral("C:\\show.lst"));
        load = qMin(load, timer.nsecsElapsed() / 1e6);
        if (text.isEmpty() || main.TextTotal->text() != QString::number(lines))
            return 1;
    }
    std::printf("list: %d lines, %lld bytes\n", lines, qint64(list.size()));
    std::printf("plain read            %8.1f ms\n", plain);
    std::printf("read into lines       %8.1f ms\n", byLines);
    std::printf("OpenFileList (work)   %8.1f ms   ratio %.2f (target <= 4, < 250 ms)\n", load,
                load / plain);
    std::printf("  against the read into lines: ratio %.2f\n", load / byLines);
    std::printf("fixed waits left out  %8lld ms\n", clock.totalWaited());
    return 0;
}
