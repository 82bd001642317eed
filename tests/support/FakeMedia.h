// Recording fakes of the media: sounds, players, the web view, the CD drive.
#pragma once

#include "platform/Media.h"

#include <QList>
#include <QPointer>
#include <QStringList>
#include <QUrl>
#include <QWidget>

namespace lumen::test {

class FakeEngine : public MediaEngine {
    Q_OBJECT
public:
    explicit FakeEngine(bool video);
    ~FakeEngine() override;

    QStringList calls; // "open <path>", "play", "pause", "stop", "fullscreen on"
    QSize size;        // the video size it reports after open
    bool autoStart = true;
    qint64 at = 0;     // the position it reports, in milliseconds
    qint64 length = 0; // the duration it reports

    void open(const QString& nativePath) override;
    void play() override;
    void stop() override;
    void pause() override;
    qint64 position() const override { return at; }
    qint64 duration() const override { return length; }
    void setAutoStart(bool on) override { autoStart = on; }
    QString fileName() const override { return file_; }
    QSize videoSize() const override { return file_.isEmpty() ? QSize() : size; }
    QWidget* videoSurface() override { return surface_; }
    void setFullScreen(bool on) override;
    bool isPlaying() const override { return playing_; }

    void finish(); // the medium reaches its end

private:
    QString file_;
    bool playing_ = false;
    QPointer<QWidget> surface_;
};

class FakeWebSurface : public WebSurface {
    Q_OBJECT
public:
    FakeWebSurface();
    ~FakeWebSurface() override;
    QList<QUrl> urls;  // every navigation, "about:blank" for navigateAway
    QStringList moves; // "back", "forward"
    QWidget* widget() override { return widget_; }
    void navigate(const QUrl& url) override;
    void navigateAway() override;
    void back() override { moves << QStringLiteral("back"); }
    void forward() override { moves << QStringLiteral("forward"); }
    QUrl url() const override { return urls.isEmpty() ? QUrl() : urls.last(); }
    QSize contentsSize() const override { return pageSize; }
    QSize pageSize; // what the page reports once "loaded"

private:
    QPointer<QWidget> widget_;
};

class FakeCdDrive : public CdDrive {
public:
    int tracks = 0; // of the disc in every drive
    QStringList calls;
    int track = 0;
    int trackCount(const QString&) override { return tracks; }
    void play(const QString& device, int t) override;
    void pause() override { calls << QStringLiteral("pause"); }
    void resume() override { calls << QStringLiteral("resume"); }
    void stop() override { calls << QStringLiteral("stop"); }
    int currentTrack() const override { return track; }
};

class FakeMedia : public Media {
public:
    QStringList sounds; // every playSound, "" for a stop
    QList<QPointer<FakeEngine>> engines;
    QList<QPointer<FakeWebSurface>> webs;
    FakeCdDrive drive;

    void playSound(const QString& nativePath) override { sounds << nativePath; }
    std::unique_ptr<MediaEngine> createEngine(bool video) override;
    std::unique_ptr<WebSurface> createWebSurface() override;
    CdDrive& cd() override { return drive; }
};

} // namespace lumen::test
