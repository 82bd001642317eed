// MediaPanel: the media player control behind MediaPlayer1 (animation) and
// MediaPlayer2 (MIDI and other sound). A screen above, the picture of a
// video or, for sound, a quiet face with the file's name; below it a small
// transport: play (pause while it plays), stop, the position bar and the
// file name. It plays through a MediaEngine of the media service and passes
// on its end; the bar and the play button follow the player as it plays.
//
// DisplaySize: 0 (the default) keeps the size the owner gives the panel and
// fits the picture into it; 3 sizes the panel to the video's own size with
// the transport bar below it, as soon as that size is known. The size is
// known only some time after Open, so the panel tells it by
// `videoSizeChanged`, after it has sized itself, for the owner to centre it.
#pragma once

#include <QSize>
#include <QWidget>

#include <memory>

class QLabel;
class QSlider;
class QTimer;
class QToolButton;

namespace lumen {

class MediaEngine;

class MediaPanel : public QWidget {
    Q_OBJECT
public:
    static constexpr int kDisplayDefault = 0;
    static constexpr int kDisplayVideoSize = 3;
    static constexpr int kTransportHeight = 28; // pixels

    // `engine` may be null: the panel then stays empty and plays nothing.
    MediaPanel(const QString& name, std::unique_ptr<MediaEngine> engine, QWidget* parent = nullptr);
    ~MediaPanel() override;

    MediaEngine* engine() const { return engine_.get(); }

    // The control's operations. Paths are native; callers convert.
    void Open(const QString& nativePath);
    void Play();
    void Stop();
    QString FileName() const;
    bool isPlaying() const;

    int DisplaySize() const { return displaySize_; }
    void setDisplaySize(int size);
    // The full-screen setting: while it is on, the picture fills the screen
    // whenever the medium plays, and comes back into the panel when it ends
    // or stops.
    bool FullScreen() const { return fullScreen_; }
    void setFullScreen(bool on);
    bool AutoStart() const { return autoStart_; }
    void setAutoStart(bool on);

    // Geometry in twips, relative to the parent.
    float Left() const;
    float Top() const;
    float Width() const;
    float Height() const;
    void setWidth(double twips);
    void setHeight(double twips);
    void Move(double left, double top);
    void Move(double left, double top, double width, double height);
    bool Visible() const { return isVisible(); }

    QSize videoSize() const;

Q_SIGNALS:
    void ended(); // the medium reached its end, or failed
    // The video's own size became known (and, with DisplaySize 3, the panel
    // has taken it).
    void videoSizeChanged(QSize size);

private:
    void buildTransport();
    void takeVideoSize(QSize size);
    void fitToVideo();
    void engineEnded();
    void showFileName(const QString& nativePath);
    void playOrPause();
    void followPlayer(); // the position bar and the play button's face

    std::unique_ptr<MediaEngine> engine_;
    QWidget* screen_ = nullptr; // the video surface, or the face for sound
    QLabel* face_ = nullptr;
    QWidget* transport_ = nullptr;
    QToolButton* play_ = nullptr;
    QToolButton* stop_ = nullptr;
    QSlider* position_ = nullptr;
    QLabel* name_ = nullptr;
    QTimer* follow_ = nullptr; // runs while the medium plays
    int displaySize_ = kDisplayDefault;
    bool fullScreen_ = false;
    bool autoStart_ = true;
};

} // namespace lumen
