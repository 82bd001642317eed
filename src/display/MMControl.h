// MMControl: the MCI control of the CD window, its row of transport buttons
// and the properties the program sets. Setting `Command` runs the command,
// as the control did:
//   "Open"   opens the CD drive of FileName's drive letter (Drives.txt names
//            its device) when DeviceType is "CDAudio"; a track file
//            ("TrackNN.cda", in any case) opens at its track, as the MCI
//            CD driver read it from the file; any other name at track 1.
//   "Close"  closes the device.
//   "Play"   plays from the current track on; after a Pause with no move
//            in between it goes on where it paused.
//   "Pause"  pauses the play.
//   "Stop"   stops; the current track stays.
//   "Prev"   back to the start of the current track, or to the previous
//            track when the last Prev was less than three seconds ago.
//   "Next"   to the next track; at the last track it stays there.
// Prev and Next go on playing at the new track when the drive played.
// Other commands do nothing. Notify, Wait and Shareable are kept and read
// back: commands here always finish before they return.
#pragma once

#include <QWidget>

#include <optional>

class QToolButton;

namespace lumen {

class CdDrive;
class Clock;
class FileSystem;

class MMControl : public QWidget {
    Q_OBJECT
public:
    MMControl(const QString& name, CdDrive& drive, FileSystem& fs, Clock& clock,
              QWidget* parent = nullptr);

    QString Command() const { return command_; }
    void setCommand(const QString& command);

    QString DeviceType() const { return deviceType_; }
    void setDeviceType(const QString& type) { deviceType_ = type; }
    QString FileName() const { return fileName_; }
    void setFileName(const QString& programPath) { fileName_ = programPath; }
    bool Notify() const { return notify_; }
    void setNotify(bool on) { notify_ = on; }
    bool Wait() const { return wait_; }
    void setWait(bool on) { wait_ = on; }
    bool Shareable() const { return shareable_; }
    void setShareable(bool on) { shareable_ = on; }

    // The current track, 1-based; 0 while no disc is open.
    qint16 Track() const;
    // Moves to a track of the open disc (as Prev and Next do).
    void setTrack(int track);
    qint16 Tracks() const { return qint16(tracks_); } // of the open disc

    bool isOpen() const { return !device_.isEmpty(); }
    bool isPlaying() const { return playing_; }
    QString device() const { return device_; } // of the open disc

    // The track of a track file's name, "D:\Track03.cda" -> 3; 0 for other names.
    static int trackOfTrackFile(const QString& programPath);

private:
    void open();
    void close();
    void play();
    void pause();
    void stop();
    void prev();
    void next();
    void moveTo(int track);
    void updateButtons();
    QToolButton* addButton(const QString& command, int icon, const QString& tip);

    CdDrive& drive_;
    FileSystem& fs_;
    Clock& clock_;
    QString command_;
    QString deviceType_;
    QString fileName_;
    bool notify_ = false;
    bool wait_ = false;
    bool shareable_ = false;

    QString device_;
    int tracks_ = 0;
    int track_ = 0;
    bool playing_ = false;
    bool paused_ = false;
    std::optional<qint64> lastPrev_;
    QList<QToolButton*> buttons_;
};

} // namespace lumen
