#include "display/MMControl.h"

#include "platform/Clock.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/Media.h"

#include <QHBoxLayout>
#include <QRegularExpression>
#include <QStyle>
#include <QToolButton>

namespace lumen {

namespace {

// A second Prev this soon after the last goes back a whole track.
constexpr qint64 kPrevRepeatMilliseconds = 3000;

} // namespace

MMControl::MMControl(const QString& name, CdDrive& drive, FileSystem& fs, Clock& clock,
                     QWidget* parent)
    : QWidget(parent)
    , drive_(drive)
    , fs_(fs)
    , clock_(clock)
{
    setObjectName(name);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    addButton(QStringLiteral("Prev"), QStyle::SP_MediaSkipBackward, QStringLiteral("前の曲"));
    addButton(QStringLiteral("Next"), QStyle::SP_MediaSkipForward, QStringLiteral("次の曲"));
    addButton(QStringLiteral("Play"), QStyle::SP_MediaPlay, QStringLiteral("再生"));
    addButton(QStringLiteral("Pause"), QStyle::SP_MediaPause, QStringLiteral("一時停止"));
    addButton(QStringLiteral("Stop"), QStyle::SP_MediaStop, QStringLiteral("停止"));
    row->addStretch(1);
    updateButtons();
}

QToolButton* MMControl::addButton(const QString& command, int icon, const QString& tip)
{
    auto* button = named<QToolButton>(command, this);
    button->setIcon(style()->standardIcon(QStyle::StandardPixmap(icon)));
    button->setToolTip(tip);
    button->setFocusPolicy(Qt::NoFocus);
    button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    connect(button, &QToolButton::clicked, this, [this, command] { setCommand(command); });
    layout()->addWidget(button);
    buttons_.append(button);
    return button;
}

void MMControl::setCommand(const QString& command)
{
    command_ = command;
    const QString word = command.trimmed().toLower();
    if (word == u"open")
        open();
    else if (word == u"close")
        close();
    else if (word == u"play")
        play();
    else if (word == u"pause")
        pause();
    else if (word == u"stop")
        stop();
    else if (word == u"prev")
        prev();
    else if (word == u"next")
        next();
    updateButtons();
}

qint16 MMControl::Track() const
{
    // While the disc plays on from track to track, the drive knows where it is.
    if (playing_ && drive_.currentTrack() > 0)
        return qint16(drive_.currentTrack());
    return qint16(track_);
}

void MMControl::setTrack(int track)
{
    if (isOpen())
        moveTo(track);
    updateButtons();
}

int MMControl::trackOfTrackFile(const QString& programPath)
{
    static const QRegularExpression trackFile(
        QStringLiteral("(?:^|[\\\\/:])track(\\d{1,2})\\.cda$"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = trackFile.match(programPath.trimmed());
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

void MMControl::open()
{
    close();
    if (deviceType_.compare(u"CDAudio", Qt::CaseInsensitive) != 0)
        return;
    const QString path = fileName_.trimmed();
    if (path.size() < 2 || path.at(1) != u':')
        return;
    const QString device = fs_.drives().drive(path.at(0)).cdDevice;
    if (device.isEmpty())
        return;
    device_ = device;
    tracks_ = drive_.trackCount(device);
    const int named = trackOfTrackFile(path);
    track_ = tracks_ == 0 ? 0 : (named >= 1 && named <= tracks_ ? named : 1);
}

void MMControl::close()
{
    if (playing_ || paused_)
        drive_.stop();
    device_.clear();
    tracks_ = 0;
    track_ = 0;
    playing_ = false;
    paused_ = false;
}

void MMControl::play()
{
    if (!isOpen() || track_ < 1)
        return;
    if (paused_)
        drive_.resume();
    else
        drive_.play(device_, track_);
    playing_ = true;
    paused_ = false;
}

void MMControl::pause()
{
    if (!playing_)
        return;
    track_ = Track();
    drive_.pause();
    playing_ = false;
    paused_ = true;
}

void MMControl::stop()
{
    if (!isOpen())
        return;
    track_ = Track();
    drive_.stop();
    playing_ = false;
    paused_ = false;
}

void MMControl::prev()
{
    if (!isOpen())
        return;
    const qint64 now = clock_.tickCount();
    const bool repeated = lastPrev_ && now - *lastPrev_ < kPrevRepeatMilliseconds;
    lastPrev_ = now;
    const int current = Track();
    moveTo(repeated ? current - 1 : current);
}

void MMControl::next()
{
    if (!isOpen())
        return;
    moveTo(Track() + 1);
}

void MMControl::moveTo(int track)
{
    if (tracks_ < 1)
        return;
    track_ = qBound(1, track, tracks_);
    paused_ = false; // a move ends a pause: Play starts at the new track
    if (playing_)
        drive_.play(device_, track_);
}

void MMControl::updateButtons()
{
    const bool ready = isOpen() && tracks_ > 0;
    for (QToolButton* button : std::as_const(buttons_))
        button->setEnabled(ready);
}

} // namespace lumen
