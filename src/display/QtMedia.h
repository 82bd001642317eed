// The real media service on Qt Multimedia and Qt WebEngine: asynchronous
// sounds on a player of their own, the players behind the media panels, the
// web view and the audio CD.
#pragma once

#include "platform/Media.h"

#include <QPointer>
#include <QSize>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>

class QAudioOutput;
class QMediaPlayer;
class QVideoWidget;

namespace lumen {

class LinuxCdDrive;

// One player on QMediaPlayer and QAudioOutput, with a QVideoWidget as its
// surface when it shows video. Every open loads the file anew, so that a
// file opened twice plays twice and a broken one fails twice. The end of the
// medium and any failure give `ended` once per open or play, always from
// the event loop, never from inside the call.
class QtMediaEngine : public MediaEngine {
    Q_OBJECT
public:
    explicit QtMediaEngine(bool video);
    ~QtMediaEngine() override;

    void open(const QString& nativePath) override;
    void play() override;
    void stop() override;
    void setAutoStart(bool on) override { autoStart_ = on; }
    QString fileName() const override { return file_; }
    QSize videoSize() const override { return size_; }
    QWidget* videoSurface() override;
    void setFullScreen(bool on) override;
    bool isPlaying() const override;
    void pause() override;
    qint64 position() const override;
    qint64 duration() const override;
    void setPosition(qint64 milliseconds) override;

private:
    void finish();
    void takeVideoSize(const QSize& size);
    void readVideoSizeFromMetaData();

    std::unique_ptr<QAudioOutput> audio_; // outlives the player that plays into it
    std::unique_ptr<QMediaPlayer> player_;
    QPointer<QVideoWidget> surface_;
    QString file_;
    QSize size_;
    bool autoStart_ = true;
    bool finished_ = false;
    int generation_ = 0; // an `ended` queued for an earlier open is dropped
};

class QtMedia : public Media {
public:
    // `beep` is the desktop's beep: a sound that can't play gives one.
    explicit QtMedia(std::function<void()> beep);
    ~QtMedia() override;

    void playSound(const QString& nativePath) override;
    std::unique_ptr<MediaEngine> createEngine(bool video) override;
    std::unique_ptr<WebSurface> createWebSurface() override;
    CdDrive& cd() override;

    // The sound in play, for the curious (tests among them).
    bool isSoundPlaying() const;
    QUrl soundSource() const;

private:
    std::function<void()> beep_;
    std::unique_ptr<QAudioOutput> soundOutput_;
    std::unique_ptr<QMediaPlayer> sound_;
    bool soundFailed_ = false; // one beep for each sound
    std::unique_ptr<LinuxCdDrive> cd_;
};

} // namespace lumen
