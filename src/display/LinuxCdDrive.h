// The audio CD on Linux: the track count from the disc's table of contents,
// and play by track through GStreamer's CD source (cdda:// addresses).
#pragma once

#include "platform/Media.h"

#include <QString>
#include <QUrl>

#include <memory>

class QAudioOutput;
class QMediaPlayer;

namespace lumen {

class LinuxCdDrive : public CdDrive {
public:
    LinuxCdDrive();
    ~LinuxCdDrive() override;

    // The number of tracks in the disc's table of contents; 0 without a
    // disc, for a device that can't be opened or isn't a CD drive.
    static int tocTrackCount(const QString& device);
    // "cdda:///dev/sr0#3": track 3 of the disc in /dev/sr0.
    static QUrl trackUrl(const QString& device, int track);

    int trackCount(const QString& device) override { return tocTrackCount(device); }
    // Plays from the start of the track on to the end of the disc, as a CD
    // player does.
    void play(const QString& device, int track) override;
    void pause() override;
    void resume() override;
    void stop() override;
    int currentTrack() const override { return track_; }

private:
    void playTrack(int track);

    std::unique_ptr<QAudioOutput> audio_; // outlives the player that plays into it
    std::unique_ptr<QMediaPlayer> player_;
    QString device_;
    int track_ = 0;
    int tracks_ = 0;
};

} // namespace lumen
