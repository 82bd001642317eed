// lumenta: a picture show driven by list files.
#include "display/LinuxCdDrive.h"
#include "display/QtMedia.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Fonts.h"
#include "platform/Launcher.h"
#include "platform/QtUserDialogs.h"
#include "platform/Translations.h"
#include "show/FormMain.h"
#include "start/Lumenta.h"
#include "start/StateDump.h"

#include <QApplication>
#include <QDir>
#include <QStyleFactory>

#include <csignal>

int main(int argc, char** argv)
{
    // Window placement and the always-on-top navigator need an X11 display;
    // on a Wayland desktop its X11 server serves.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && !qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "xcb");

    // A write beyond a file size limit fails and is reported like any other
    // failed write; the old file stays. It doesn't end the program.
    std::signal(SIGXFSZ, SIG_IGN);

    // The web view draws with OpenGL contexts shared with the windows'.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("lumenta"));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    lumen::installFontSubstitutes();
    if (!lumen::installJapaneseQtTexts())
        qWarning("lumenta: qtbase_ja.qm not found; the standard dialogs speak English");

    lumen::RealClock clock;
    lumen::QtUserDialogs dialogs;
    lumen::FileSystem fs(lumen::DriveMap(QDir::homePath()), QStringLiteral("C:\\"));
    fs.chDir(fs.toProgram(QDir::currentPath()));
    fs.loadDrivesFile(QDir::home().filePath(QStringLiteral("Lumentas/ForProgramRun_KDR")));
    fs.setCdTrackCounter(&lumen::LinuxCdDrive::tocTrackCount);
    lumen::ProcessLauncher launcher(fs);
    lumen::QtMedia media([&dialogs] { dialogs.beep(); });
    const lumen::Services services{clock, dialogs, launcher, fs, media};

    QStringList arguments = QApplication::arguments();
    arguments.removeFirst();
    lumen::Lumenta lumenta(services, arguments, QApplication::applicationFilePath());
    dialogs.setOwner(&lumenta.formMain());
    lumen::StateDump dump(lumenta);
    lumenta.Main();
    return QApplication::exec();
}
