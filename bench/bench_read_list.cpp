// Reading a long list: ReadTextOfFile and CleanListFile against a plain read,
// and a plain read and write, of the same 32,767-line file in the same run.
// Prints the times, their ratios and the peak memory of each procedure.
#include "ProcStatus.h"
#include "fileops/BasicHost.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Launcher.h"
#include "platform/Media.h"
#include "platform/TextCodec.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <malloc.h>

using namespace lumen;

namespace {

class QuietHost : public BasicHost {
public:
    void setMainCaption(const QString&) override {}
    void showStop() override {}
    void setStopText(const QString&) override {}
    void unloadStop() override {}
    void refreshFileControls() override {}
    bool askForcedDrive(const QString&) override { return false; }
};

class QuietDialogs : public UserDialogs {
public:
    void msgBox(const QString& text) override
    {
        std::fprintf(stderr, "box: %s\n", qPrintable(text));
    }
    void msgBoxExclamation(const QString& text) override { msgBox(text); }
    int askYesNo(const QString&) override { return kAnswerYes; }
    std::optional<QString> inputBox(const QString&, const QString&, const QString&) override
    {
        return std::nullopt;
    }
    void beep() override {}
    void showMessage(int, int, const QString&) override {}
    void hideMessage() override {}
    std::optional<QString> openFileName(const QString&, const QString&, const QString&) override
    {
        return std::nullopt;
    }
    std::optional<QString> saveFileName(const QString&, const QString&, const QString&) override
    {
        return std::nullopt;
    }
    QString browseForFolder(const QString&, const QString&) override { return {}; }
    std::optional<qint32> chooseColor(qint32) override { return std::nullopt; }
    std::optional<FontChoice> chooseFont(const QString&, double) override { return std::nullopt; }
};

class NoMedia : public Media {
public:
    void playSound(const QString&) override {}
    std::unique_ptr<MediaEngine> createEngine(bool) override { return nullptr; }
    std::unique_ptr<WebSurface> createWebSurface() override { return nullptr; }
    CdDrive& cd() override { std::abort(); }
};

class NoLauncher : public Launcher {
public:
    bool shell(const QString&) override { return false; }
    int shellExecuteOpen(const QString&) override { return 2; }
};

// About 100 characters a line, Japanese and ASCII mixed, as real lists are.
QByteArray makeList(int lines)
{
    QString text;
    for (int i = 1; i <= lines; ++i) {
        text +=
            QStringLiteral("C:\\写真\\旅行2026\\京都_%1.jpg @WITH=C:\\音\\鐘の音_%1.wav ENDWITH "
                           "@DELAY=5 ENDDELAY @COMMENT=<<<<<清水寺の朝 line %1 ENDCOMMENT\r\n")
                .arg(i, 5, 10, QLatin1Char('0'));
    }
    return text::encodeForFile(text);
}

// Peak memory that `work` adds above what the process holds before it: the
// high-water mark is reset to the current size first.
long peakKbOf(const std::function<void()>& work)
{
    malloc_trim(0);
    bench::resetPeak();
    const long before = bench::statusKb("VmRSS");
    work();
    return bench::statusKb("VmHWM") - before;
}

double bestMsOf(int runs, const std::function<void()>& work)
{
    double best = 1e9;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        best = qMin(best, timer.nsecsElapsed() / 1e6);
    }
    return best;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QTemporaryDir home;
    FileSystem fs(DriveMap(home.path()), QStringLiteral("C:\\"));
    RealClock clock;
    QuietDialogs ui;
    NoLauncher launcher;
    QuietHost host;
    ProgramState state;
    state.DataDir = QStringLiteral("C:\\Lumentas");
    NoMedia media;
    Services services{clock, ui, launcher, fs, media};
    VeroProcedure_Basical basics(state, services, host);

    const int lines = 32767;
    const QByteArray list = makeList(lines);
    const QString original = home.filePath(QStringLiteral("original.lst"));
    const QString work = home.filePath(QStringLiteral("work.lst"));
    {
        QFile out(original);
        out.open(QIODevice::WriteOnly);
        out.write(list);
    }
    auto restore = [&] {
        QFile::remove(work);
        QFile::copy(original, work);
    };
    const qint64 textBytes = qint64(text::decode(list).size()) * 2;

    QString sink;
    restore();
    const double plainRead = bestMsOf(5, [&] {
        QFile in(work);
        in.open(QIODevice::ReadOnly);
        sink = text::decode(in.readAll());
    });
    const double plainReadWrite = bestMsOf(5, [&] {
        QFile in(work);
        in.open(QIODevice::ReadOnly);
        const QString text = text::decode(in.readAll());
        QSaveFile out(work);
        out.open(QIODevice::WriteOnly);
        out.write(text::encodeForFile(text));
        out.commit();
    });
    const double readText =
        bestMsOf(5, [&] { sink = basics.ReadTextOfFile(QStringLiteral("C:\\work.lst")); });
    sink.clear();
    sink.squeeze();
    const long readPeak =
        peakKbOf([&] { sink = basics.ReadTextOfFile(QStringLiteral("C:\\work.lst")); });
    sink.clear();
    sink.squeeze();
    double clean = 1e9;
    for (int i = 0; i < 5; ++i) {
        restore();
        clean =
            qMin(clean, bestMsOf(1, [&] { basics.CleanListFile(QStringLiteral("C:\\work.lst")); }));
    }
    restore();
    const long cleanPeak = peakKbOf([&] { basics.CleanListFile(QStringLiteral("C:\\work.lst")); });

    std::printf("list: %d lines, %lld bytes on disk, %lld bytes as text\n", lines,
                qint64(list.size()), textBytes);
    std::printf("plain read             %8.1f ms\n", plainRead);
    std::printf("ReadTextOfFile         %8.1f ms   ratio %.2f (target <= 3, < 100 ms)\n", readText,
                readText / plainRead);
    std::printf("plain read and write   %8.1f ms\n", plainReadWrite);
    std::printf("CleanListFile          %8.1f ms   ratio %.2f (target <= 3, < 100 ms)\n", clean,
                clean / plainReadWrite);
    std::printf("peak ReadTextOfFile    %8.1f MB   %.2f x text (target < 4)\n", readPeak / 1024.0,
                readPeak * 1024.0 / textBytes);
    std::printf("peak CleanListFile     %8.1f MB   %.2f x text (target < 4)\n", cleanPeak / 1024.0,
                cleanPeak * 1024.0 / textBytes);
    return 0;
}
