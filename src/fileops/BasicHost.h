// What the basic procedures need from the windows around them: the caption
// of the main window for status texts, the progress window FormStop, the
// file boxes that must read the disk again, and the window that asks the
// user for a drive.
#pragma once

#include <QString>

namespace lumen {

class BasicHost {
public:
    virtual ~BasicHost() = default;

    virtual void setMainCaption(const QString& caption) = 0;

    // FormStop: show it, show a text in its box, unload it.
    virtual void showStop() = 0;
    virtual void setStopText(const QString& text) = 0;
    virtual void unloadStop() = 0;

    // Drive1, Dir1 and File1 of the file selection and the bulk windows.
    virtual void refreshFileControls() = 0;

    // FormHatenaDrive, modal, with the mark in ComboHatenaDrive; it sets
    // ForcedDriveFrom and ForcedDriveTo of the program state. False when
    // there is no one to ask (no window stands yet).
    virtual bool askForcedDrive(const QString& mark) = 0;
};

} // namespace lumen
