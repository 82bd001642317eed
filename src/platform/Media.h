// The media the show plays: asynchronous sounds, the players behind the two
// media panels, the web view and the CD drive. Windows reach them through
// this service, so that tests run with fakes on a machine with no sound card
// and no GPU, and the real ones (Qt Multimedia, Qt WebEngine) serve the user.
#pragma once

#include <QObject>
#include <QSize>
#include <QString>
#include <QUrl>
#include <memory>

class QWidget;

namespace lumen {

// One player: a file opened, played, stopped; the end of the medium, or a
// failure (which ends it too), is told by `ended`.
class MediaEngine : public QObject {
    Q_OBJECT
public:
    ~MediaEngine() override = default;

    virtual void open(const QString& nativePath) = 0; // plays at once when auto-start is on
    virtual void play() = 0;
    virtual void stop() = 0;
    // Holds the medium where it stands; play() goes on from there. A player
    // that can't hold stops.
    virtual void pause() { stop(); }
    virtual void setAutoStart(bool on) = 0;
    virtual QString fileName() const = 0; // native; "" when nothing is open
    // The video's own size in pixels once it is known; empty for sound.
    virtual QSize videoSize() const = 0;
    // The surface that shows the video (a child for the panel to place), or
    // nullptr for a player without picture.
    virtual QWidget* videoSurface() = 0;
    virtual void setFullScreen(bool on) = 0;
    virtual bool isPlaying() const = 0;
    // Where the medium stands and how long it is, in milliseconds (0 while
    // unknown), for the panel's position bar.
    virtual qint64 position() const { return 0; }
    virtual qint64 duration() const { return 0; }
    virtual void setPosition(qint64 milliseconds) { Q_UNUSED(milliseconds); }

Q_SIGNALS:
    void ended();                 // end of medium, or a failure
    void videoSizeChanged(QSize); // the video's own size became known
    void positionChanged(qint64 milliseconds);
    void durationChanged(qint64 milliseconds);
};

// The web view of web and HTML pages.
class WebSurface : public QObject {
    Q_OBJECT
public:
    ~WebSurface() override = default;
    virtual QWidget* widget() = 0;
    virtual void navigate(const QUrl& url) = 0;
    virtual void navigateAway() = 0; // to a blank page
    virtual void back() = 0;
    virtual void forward() = 0;
    virtual QUrl url() const = 0;
    // The whole page's size in pixels once it has loaded; empty when unknown.
    virtual QSize contentsSize() const { return {}; }

Q_SIGNALS:
    void loadFinished(bool ok);
};

// An audio CD in a drive with a device.
class CdDrive {
public:
    virtual ~CdDrive() = default;
    virtual int trackCount(const QString& device) = 0;       // 0 without a disc
    virtual void play(const QString& device, int track) = 0; // from the track's start
    virtual void pause() = 0;
    virtual void resume() = 0; // after a pause, from where it stopped
    virtual void stop() = 0;
    virtual int currentTrack() const = 0; // 0 when nothing is loaded
};

class Media {
public:
    virtual ~Media() = default;

    // sndPlaySound with the asynchronous flag: a new sound cuts the last,
    // an empty name stops. A sound that can't play gives one beep.
    virtual void playSound(const QString& nativePath) = 0;

    virtual std::unique_ptr<MediaEngine> createEngine(bool video) = 0;
    virtual std::unique_ptr<WebSurface> createWebSurface() = 0;
    virtual CdDrive& cd() = 0;
};

} // namespace lumen
