#include "settings/ProgramCandidates.h"

#include "platform/FileSystem.h"
#include "platform/Launcher.h"

#include <QStandardPaths>

namespace lumen {
namespace {

const QString kOpener = QStringLiteral("xdg-open");

QStringList withOpener(QStringList names)
{
    names << kOpener;
    return names;
}

} // namespace

const QStringList& programCandidates(ProgramRole role)
{
    // Simple editors of the usual desktops first (GNOME, KDE, Xfce, MATE,
    // LXQt, LXDE), the heavier Kate last.
    static const QStringList textEditors =
        withOpener({"gedit", "gnome-text-editor", "kwrite", "mousepad", "pluma", "featherpad",
                    "l3afpad", "kate"});
    // VLC plays MIDI and the old film formats; the rest follow by reach.
    static const QStringList mediaPlayers = withOpener(
        {"vlc", "smplayer", "celluloid", "totem", "parole", "dragon", "kaffeine", "mpv"});
    // Editors that record and play, and open the file they are given.
    static const QStringList soundRecorders =
        withOpener({"audacity", "kwave", "mhwaveedit", "sweep"});
    // x-www-browser is Debian's choice of the user's browser.
    static const QStringList webBrowsers =
        withOpener({"x-www-browser", "firefox-esr", "firefox", "chromium", "epiphany-browser",
                    "falkon", "konqueror", "qutebrowser"});
    static const QStringList pictureEditors =
        withOpener({"gimp", "kolourpaint", "drawing", "mtpaint", "krita", "mypaint", "xpaint"});
    // view3dscene and whitedune are VRML browsers; f3d and meshlab import it.
    static const QStringList vrmlViewers =
        withOpener({"view3dscene", "whitedune", "f3d", "meshlab"});
    // g3dviewer reads NFF; the others are general 3D viewers.
    static const QStringList secondViewers =
        withOpener({"g3dviewer", "f3d", "meshlab", "view3dscene"});

    switch (role) {
    case ProgramRole::TextEditor:
        return textEditors;
    case ProgramRole::MediaPlayer:
        return mediaPlayers;
    case ProgramRole::SoundRecorder:
        return soundRecorders;
    case ProgramRole::WebBrowser:
        return webBrowsers;
    case ProgramRole::PictureEditor:
        return pictureEditors;
    case ProgramRole::VrmlViewer:
        return vrmlViewers;
    case ProgramRole::SecondViewer:
        return secondViewers;
    }
    return textEditors;
}

QString findProgram(ProgramRole role, const QString& systemFolder, const FileSystem& fs)
{
    const QStringList& names = programCandidates(role);
    for (const QString& name : names) {
        const QString found = QStandardPaths::findExecutable(name);
        if (!found.isEmpty())
            return fs.toProgram(found);
    }
    return systemFolder + QLatin1Char('\\') + names.last();
}

bool isProgramFile(const QString& nativePath)
{
    return isExecutableFile(nativePath);
}

} // namespace lumen
