#include "platform/FormBase.h"

#include "platform/Controls.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QTimer>
#include <QWindow>

namespace lumen {
namespace {

constexpr int kFramingLookMs = 50;
constexpr int kFramingLooks = 60; // three seconds
constexpr int kSteadyLooks = 3;   // the same place and frame this often in a row
constexpr int kFramingMoves = 2;

} // namespace

FormBase::FormBase(const QString& name, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
    setObjectName(name);
    // The window system knows the window by its name too (WM_WINDOW_ROLE).
    setWindowRole(name);
}

void FormBase::load()
{
    if (loaded_ || inLoad_)
        return;
    inLoad_ = true;
    loaded_ = true;
    Form_Load();
    inLoad_ = false;
}

void FormBase::showForm()
{
    load();
    show();
    raise();
}

void FormBase::showModal()
{
    load();
    setWindowModality(Qt::ApplicationModal);
    show();
    raise();
    activateWindow();
    QEventLoop loop;
    modalLoop_ = &loop;
    if (isVisible())
        loop.exec();
    modalLoop_ = nullptr;
    setWindowModality(Qt::NonModal);
}

bool FormBase::unload()
{
    if (!loaded_) {
        hide();
        return true;
    }
    bool cancel = false;
    Form_Unload(cancel);
    if (cancel)
        return false;
    loaded_ = false;
    hide();
    Q_EMIT unloaded();
    return true;
}

void FormBase::closeEvent(QCloseEvent* event)
{
    // The frame's close box unloads; the object itself stays.
    event->ignore();
    unload();
}

void FormBase::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!askedFramePlace(this))
        return;
    if (!framing_) {
        framing_ = new QTimer(this);
        framing_->setInterval(kFramingLookMs);
        connect(framing_, &QTimer::timeout, this, &FormBase::placeFrameOnceFramed);
    }
    framingLooks_ = 0;
    framingMoves_ = 0;
    steadyLooks_ = 0;
    lastSeen_ = QRect();
    framing_->start();
}

void FormBase::placeFrameOnceFramed()
{
    // A window placed before the window manager framed it may stand by its
    // inside, its title bar above the screen: once the frame is there, it is
    // placed again by its frame. What the window system tells lags behind
    // while the window manager is at work, so the place is judged only after
    // it has stayed the same for a few looks. Without a window manager no
    // frame comes, and the looks end.
    const std::optional<QPoint> asked = askedFramePlace(this);
    if (!asked || !isVisible() || ++framingLooks_ > kFramingLooks) {
        framing_->stop();
        return;
    }
    const QMargins frame = frameMargins(this);
    const QRect seen = frameRect(this);
    if (frame.isNull() || seen != lastSeen_ || frame != lastFrame_) {
        lastSeen_ = seen;
        lastFrame_ = frame;
        steadyLooks_ = 0;
        return;
    }
    if (++steadyLooks_ < kSteadyLooks)
        return;
    steadyLooks_ = 0;
    if (seen.topLeft() == *asked || ++framingMoves_ > kFramingMoves) {
        framing_->stop();
        clearAskedFramePlace(this);
        windowFramed();
        return;
    }
    // The inside is placed: the widget may not know its frame yet and take
    // a frame position for the one it has, and a move it still owes by its
    // frame would come on top of this one later. Placing the inside settles both.
    setGeometry(QRect(*asked + QPoint(frame.left(), frame.top()), size()));
}

void FormBase::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (modalLoop_)
        modalLoop_->quit();
}

} // namespace lumen
