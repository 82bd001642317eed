#include "display/MediaPanel.h"

#include "platform/Controls.h"
#include "platform/Media.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QSlider>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <limits>

namespace lumen {

namespace {

// Narrower than this, the transport's buttons and bar don't fit.
constexpr int kMinimumVideoPanelWidth = 160;
// How often the bar and the play button look at the player while it plays.
constexpr int kFollowMilliseconds = 250;

// The file name in the transport: takes the room the bar leaves it and
// shortens the name in the middle to fit.
class NameLabel : public QLabel {
public:
    explicit NameLabel(QWidget* parent)
        : QLabel(parent)
    {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::WindowText));
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
        painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft, shown);
    }
};

QToolButton* makeTransportButton(const QString& name, QStyle::StandardPixmap icon,
                                 const QString& tip, QWidget* parent)
{
    auto* button = named<QToolButton>(name, parent);
    button->setIcon(parent->style()->standardIcon(icon));
    button->setToolTip(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QLabel* makeFace(QWidget* parent)
{
    auto* face = named<QLabel>(QStringLiteral("Face"), parent);
    face->setAlignment(Qt::AlignCenter);
    face->setWordWrap(true);
    face->setTextFormat(Qt::RichText);
    face->setStyleSheet(QStringLiteral(
        "QLabel#Face { color: #e8ecf4; background: qlineargradient(x1:0, y1:0, x2:0, y2:1, "
        "stop:0 #27344f, stop:1 #0d1320); }"));
    return face;
}

} // namespace

MediaPanel::MediaPanel(const QString& name, std::unique_ptr<MediaEngine> engine, QWidget* parent)
    : QWidget(parent)
    , engine_(std::move(engine))
{
    setObjectName(name);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);

    if (engine_ && engine_->videoSurface()) {
        screen_ = engine_->videoSurface();
        screen_->setParent(this);
    } else {
        face_ = makeFace(this);
        screen_ = face_;
    }
    screen_->setMinimumSize(0, 0);
    column->addWidget(screen_, 1);
    buildTransport();
    column->addWidget(transport_);
    showFileName(QString());

    if (!engine_)
        return;
    connect(engine_.get(), &MediaEngine::ended, this, &MediaPanel::engineEnded);
    connect(engine_.get(), &MediaEngine::videoSizeChanged, this, &MediaPanel::takeVideoSize);
    connect(engine_.get(), &MediaEngine::durationChanged, this,
            [this](qint64 milliseconds) { position_->setMaximum(int(milliseconds)); });
    connect(engine_.get(), &MediaEngine::positionChanged, this, [this](qint64 milliseconds) {
        if (!position_->isSliderDown())
            position_->setValue(int(milliseconds));
    });
    // Not every player tells its position as it goes (MIDI doesn't): the
    // panel asks it too.
    follow_ = new QTimer(this);
    follow_->setInterval(kFollowMilliseconds);
    connect(follow_, &QTimer::timeout, this, &MediaPanel::followPlayer);
}

MediaPanel::~MediaPanel()
{
    // The engine takes its video surface with it: the layout must let go first.
    if (engine_ && screen_ == engine_->videoSurface())
        layout()->removeWidget(screen_);
}

void MediaPanel::buildTransport()
{
    transport_ = named<QWidget>(QStringLiteral("Transport"), this);
    transport_->setFixedHeight(kTransportHeight);
    transport_->setAutoFillBackground(true);
    auto* row = new QHBoxLayout(transport_);
    row->setContentsMargins(2, 1, 4, 1);
    row->setSpacing(2);

    play_ = makeTransportButton(QStringLiteral("PlayButton"), QStyle::SP_MediaPlay,
                                QStringLiteral("再生"), transport_);
    stop_ = makeTransportButton(QStringLiteral("StopButton"), QStyle::SP_MediaStop,
                                QStringLiteral("停止"), transport_);
    position_ = named<QSlider>(QStringLiteral("PositionBar"), Qt::Horizontal, transport_);
    position_->setRange(0, 0);
    position_->setFocusPolicy(Qt::NoFocus);
    name_ = named<NameLabel>(QStringLiteral("FileNameLabel"), transport_);

    row->addWidget(play_);
    row->addWidget(stop_);
    row->addWidget(position_, 3);
    row->addWidget(name_, 2);

    connect(play_, &QToolButton::clicked, this, &MediaPanel::playOrPause);
    connect(stop_, &QToolButton::clicked, this, &MediaPanel::Stop);
    connect(position_, &QSlider::sliderMoved, this, [this](int milliseconds) {
        if (engine_)
            engine_->setPosition(milliseconds);
    });
}

void MediaPanel::Open(const QString& nativePath)
{
    if (!engine_)
        return;
    position_->setRange(0, 0);
    showFileName(nativePath);
    engine_->open(nativePath);
    if (fullScreen_ && engine_->isPlaying())
        engine_->setFullScreen(true);
    fitToVideo();
    followPlayer();
}

void MediaPanel::Play()
{
    if (!engine_)
        return;
    engine_->play();
    if (fullScreen_)
        engine_->setFullScreen(true);
    followPlayer();
}

void MediaPanel::Stop()
{
    if (!engine_)
        return;
    engine_->stop();
    followPlayer();
    position_->setValue(0);
    if (fullScreen_)
        engine_->setFullScreen(false);
}

QString MediaPanel::FileName() const
{
    return engine_ ? engine_->fileName() : QString();
}

bool MediaPanel::isPlaying() const
{
    return engine_ && engine_->isPlaying();
}

void MediaPanel::setDisplaySize(int size)
{
    displaySize_ = size;
    fitToVideo();
}

void MediaPanel::setFullScreen(bool on)
{
    fullScreen_ = on;
    if (engine_ && (!on || engine_->isPlaying()))
        engine_->setFullScreen(on);
}

void MediaPanel::setAutoStart(bool on)
{
    autoStart_ = on;
    if (engine_)
        engine_->setAutoStart(on);
}

float MediaPanel::Left() const
{
    return twLeft(this);
}

float MediaPanel::Top() const
{
    return twTop(this);
}

float MediaPanel::Width() const
{
    return twWidth(this);
}

float MediaPanel::Height() const
{
    return twHeight(this);
}

void MediaPanel::setWidth(double twips)
{
    twResize(this, twips, Height());
}

void MediaPanel::setHeight(double twips)
{
    twResize(this, Width(), twips);
}

void MediaPanel::Move(double left, double top)
{
    twMove(this, left, top);
}

void MediaPanel::Move(double left, double top, double width, double height)
{
    twMove(this, left, top, width, height);
}

QSize MediaPanel::videoSize() const
{
    return engine_ ? engine_->videoSize() : QSize();
}

void MediaPanel::takeVideoSize(QSize size)
{
    fitToVideo();
    Q_EMIT videoSizeChanged(size);
}

void MediaPanel::fitToVideo()
{
    const QSize video = videoSize();
    if (displaySize_ != kDisplayVideoSize || video.isEmpty())
        return;
    resize(qMax(video.width(), kMinimumVideoPanelWidth), video.height() + kTransportHeight);
}

void MediaPanel::engineEnded()
{
    if (fullScreen_)
        engine_->setFullScreen(false);
    // At its end the medium stands rewound: the next play starts it again.
    followPlayer();
    position_->setValue(0);
    Q_EMIT ended();
}

void MediaPanel::playOrPause()
{
    if (!engine_)
        return;
    if (!engine_->isPlaying()) {
        Play();
        return;
    }
    engine_->pause();
    followPlayer();
}

void MediaPanel::followPlayer()
{
    const bool playing = engine_ && engine_->isPlaying();
    if (engine_) {
        const qint64 duration = engine_->duration();
        if (duration > 0)
            position_->setMaximum(int(qMin<qint64>(duration, std::numeric_limits<int>::max())));
        if (playing && !position_->isSliderDown())
            position_->setValue(
                int(qMin<qint64>(engine_->position(), std::numeric_limits<int>::max())));
    }
    play_->setIcon(style()->standardIcon(playing ? QStyle::SP_MediaPause : QStyle::SP_MediaPlay));
    play_->setToolTip(playing ? QStringLiteral("一時停止") : QStringLiteral("再生"));
    if (!follow_)
        return;
    if (playing && !follow_->isActive())
        follow_->start();
    else if (!playing)
        follow_->stop();
}

void MediaPanel::showFileName(const QString& nativePath)
{
    const QString name = QFileInfo(nativePath).fileName();
    name_->setText(name);
    name_->setToolTip(name);
    if (face_) {
        face_->setText(QStringLiteral("<div style='font-size:34pt'>&#9835;</div>"
                                      "<div style='font-size:10pt'>%1</div>")
                           .arg(name.toHtmlEscaped()));
    }
}

} // namespace lumen
