#include "display/LinuxCdDrive.h"

#include <QAudioOutput>
#include <QFile>
#include <QMediaPlayer>

#include <fcntl.h>
#include <linux/cdrom.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace lumen {

LinuxCdDrive::LinuxCdDrive()
    : audio_(std::make_unique<QAudioOutput>())
    , player_(std::make_unique<QMediaPlayer>())
{
    player_->setAudioOutput(audio_.get());
    QObject::connect(player_.get(), &QMediaPlayer::mediaStatusChanged, player_.get(),
                     [this](QMediaPlayer::MediaStatus status) {
                         if (status == QMediaPlayer::EndOfMedia && track_ < tracks_)
                             playTrack(track_ + 1);
                     });
}

LinuxCdDrive::~LinuxCdDrive()
{
    player_->stop();
}

int LinuxCdDrive::tocTrackCount(const QString& device)
{
    if (device.isEmpty())
        return 0;
    // Non-blocking, so that an open tray or a drive without a disc answers at once.
    const int fd = ::open(QFile::encodeName(device).constData(), O_RDONLY | O_NONBLOCK);
    if (fd < 0)
        return 0;
    cdrom_tochdr header{};
    const int result = ::ioctl(fd, CDROMREADTOCHDR, &header);
    ::close(fd);
    if (result != 0 || header.cdth_trk1 < header.cdth_trk0)
        return 0;
    return header.cdth_trk1 - header.cdth_trk0 + 1;
}

QUrl LinuxCdDrive::trackUrl(const QString& device, int track)
{
    // The CD source reads "cdda://<device>#<track>".
    return QUrl(QStringLiteral("cdda://") +
                QString::fromLatin1(QUrl::toPercentEncoding(device, "/")) + u'#' +
                QString::number(track));
}

void LinuxCdDrive::play(const QString& device, int track)
{
    device_ = device;
    tracks_ = tocTrackCount(device);
    playTrack(track);
}

void LinuxCdDrive::playTrack(int track)
{
    track_ = track;
    player_->stop();
    player_->setSource(QUrl());
    player_->setSource(trackUrl(device_, track));
    player_->play();
}

void LinuxCdDrive::pause()
{
    player_->pause();
}

void LinuxCdDrive::resume()
{
    player_->play();
}

void LinuxCdDrive::stop()
{
    player_->stop();
}

} // namespace lumen
