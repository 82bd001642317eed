#include "display/QtMedia.h"

#include "display/LinuxCdDrive.h"
#include "display/QtWebSurface.h"

#include <QAudioOutput>
#include <QFileInfo>
#include <QMediaMetaData>
#include <QMediaPlayer>
#include <QTimer>
#include <QVideoSink>
#include <QVideoWidget>

namespace lumen {

namespace {

bool isPlayableFile(const QString& nativePath)
{
    return !nativePath.isEmpty() && QFileInfo(nativePath).isFile();
}

// Loads the file anew even when it is the one already loaded: the player
// ignores a source it already has, and a medium must restart (or fail) each
// time it is asked for.
void loadAnew(QMediaPlayer& player, const QString& nativePath)
{
    player.stop();
    player.setSource(QUrl());
    if (!nativePath.isEmpty())
        player.setSource(QUrl::fromLocalFile(nativePath));
}

} // namespace

QtMediaEngine::QtMediaEngine(bool video)
    : audio_(std::make_unique<QAudioOutput>())
    , player_(std::make_unique<QMediaPlayer>())
{
    player_->setAudioOutput(audio_.get());
    if (video) {
        surface_ = new QVideoWidget;
        surface_->setAspectRatioMode(Qt::KeepAspectRatio);
        player_->setVideoOutput(surface_.data());
        // The sink tells the change holding its lock, and asking its size
        // there would wait on that lock for ever: ask afterwards.
        QVideoSink* sink = surface_->videoSink();
        connect(
            sink, &QVideoSink::videoSizeChanged, this,
            [this, sink] { takeVideoSize(sink->videoSize()); }, Qt::QueuedConnection);
    }
    connect(player_.get(), &QMediaPlayer::mediaStatusChanged, this,
            [this](QMediaPlayer::MediaStatus status) {
                if (status == QMediaPlayer::EndOfMedia || status == QMediaPlayer::InvalidMedia)
                    finish();
            });
    connect(player_.get(), &QMediaPlayer::errorOccurred, this, [this] { finish(); });
    connect(player_.get(), &QMediaPlayer::metaDataChanged, this,
            &QtMediaEngine::readVideoSizeFromMetaData);
    connect(player_.get(), &QMediaPlayer::tracksChanged, this,
            &QtMediaEngine::readVideoSizeFromMetaData);
    connect(player_.get(), &QMediaPlayer::positionChanged, this, &MediaEngine::positionChanged);
    connect(player_.get(), &QMediaPlayer::durationChanged, this, &MediaEngine::durationChanged);
}

QtMediaEngine::~QtMediaEngine()
{
    player_->stop();
    player_->setVideoOutput(static_cast<QObject*>(nullptr));
    delete surface_.data();
}

void QtMediaEngine::open(const QString& nativePath)
{
    ++generation_;
    finished_ = false;
    file_ = nativePath;
    size_ = QSize();
    if (!isPlayableFile(nativePath)) {
        loadAnew(*player_, QString());
        finish();
        return;
    }
    loadAnew(*player_, nativePath);
    if (autoStart_ && !finished_) // some files fail while they load
        player_->play();
}

void QtMediaEngine::play()
{
    ++generation_;
    finished_ = false;
    // A medium that failed already won't fail again by itself: tell it now.
    if (!isPlayableFile(file_) || player_->error() != QMediaPlayer::NoError ||
        player_->mediaStatus() == QMediaPlayer::InvalidMedia) {
        finish();
        return;
    }
    player_->play();
}

void QtMediaEngine::stop()
{
    ++generation_; // a stopped player reports nothing more
    finished_ = false;
    player_->stop();
}

void QtMediaEngine::pause()
{
    player_->pause();
}

QWidget* QtMediaEngine::videoSurface()
{
    return surface_.data();
}

void QtMediaEngine::setFullScreen(bool on)
{
    if (surface_ && surface_->isFullScreen() != on)
        surface_->setFullScreen(on);
}

bool QtMediaEngine::isPlaying() const
{
    // A player that failed still says it plays (stopping it would take a
    // second): the failure tells.
    return !finished_ && player_->playbackState() == QMediaPlayer::PlayingState;
}

qint64 QtMediaEngine::position() const
{
    return player_->position();
}

qint64 QtMediaEngine::duration() const
{
    return player_->duration();
}

void QtMediaEngine::setPosition(qint64 milliseconds)
{
    player_->setPosition(milliseconds);
}

void QtMediaEngine::finish()
{
    if (finished_)
        return;
    finished_ = true;
    QTimer::singleShot(0, this, [this, generation = generation_] {
        if (generation == generation_)
            Q_EMIT ended();
    });
}

void QtMediaEngine::takeVideoSize(const QSize& size)
{
    if (!surface_ || size.isEmpty() || size == size_)
        return;
    size_ = size;
    Q_EMIT videoSizeChanged(size_);
}

void QtMediaEngine::readVideoSizeFromMetaData()
{
    QSize size = player_->metaData().value(QMediaMetaData::Resolution).toSize();
    const QList<QMediaMetaData> tracks = player_->videoTracks();
    for (qsizetype i = 0; size.isEmpty() && i < tracks.size(); ++i)
        size = tracks.at(i).value(QMediaMetaData::Resolution).toSize();
    takeVideoSize(size);
}

QtMedia::QtMedia(std::function<void()> beep)
    : beep_(std::move(beep))
{}

QtMedia::~QtMedia()
{
    if (sound_)
        sound_->stop();
}

void QtMedia::playSound(const QString& nativePath)
{
    if (!sound_) {
        soundOutput_ = std::make_unique<QAudioOutput>();
        sound_ = std::make_unique<QMediaPlayer>();
        sound_->setAudioOutput(soundOutput_.get());
        const auto failed = [this] {
            if (soundFailed_)
                return;
            soundFailed_ = true;
            if (beep_)
                beep_();
        };
        QObject::connect(sound_.get(), &QMediaPlayer::errorOccurred, sound_.get(), failed);
        QObject::connect(sound_.get(), &QMediaPlayer::mediaStatusChanged, sound_.get(),
                         [failed](QMediaPlayer::MediaStatus status) {
                             if (status == QMediaPlayer::InvalidMedia)
                                 failed();
                         });
    }
    soundFailed_ = false;
    if (nativePath.isEmpty()) {
        loadAnew(*sound_, QString());
        return;
    }
    // A missing file cuts the last sound too, and gives the beep at once.
    if (!isPlayableFile(nativePath)) {
        loadAnew(*sound_, QString());
        soundFailed_ = true;
        if (beep_)
            beep_();
        return;
    }
    loadAnew(*sound_, nativePath);
    sound_->play();
}

bool QtMedia::isSoundPlaying() const
{
    // A player that failed still says it plays.
    return sound_ && !soundFailed_ && sound_->playbackState() == QMediaPlayer::PlayingState;
}

QUrl QtMedia::soundSource() const
{
    return sound_ ? sound_->source() : QUrl();
}

std::unique_ptr<MediaEngine> QtMedia::createEngine(bool video)
{
    return std::make_unique<QtMediaEngine>(video);
}

std::unique_ptr<WebSurface> QtMedia::createWebSurface()
{
    return std::make_unique<QtWebSurface>();
}

CdDrive& QtMedia::cd()
{
    if (!cd_)
        cd_ = std::make_unique<LinuxCdDrive>();
    return *cd_;
}

} // namespace lumen
