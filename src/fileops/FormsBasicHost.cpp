#include "fileops/FormsBasicHost.h"

#include "fileops/FormStop.h"

#include <QLineEdit>
#include <QWidget>

namespace lumen {

void FormsBasicHost::setMainCaption(const QString& caption)
{
    if (mainWindow)
        mainWindow->setWindowTitle(caption);
}

void FormsBasicHost::showStop()
{
    stop_.showForm();
}

namespace {

// The box changes at most this often: a long read updates it every 50 lines,
// far faster than a screen shows, and each change costs a layout.
constexpr int kStopTextMs = 30;

} // namespace

FormsBasicHost::FormsBasicHost(FormStop& stop)
    : stop_(stop)
{}

FormsBasicHost::~FormsBasicHost()
{
    delete stopTextTimer_;
}

void FormsBasicHost::setStopText(const QString& text)
{
    pendingStopText_ = text;
    if (!sinceStopText_.isValid() || sinceStopText_.elapsed() >= kStopTextMs) {
        applyStopText();
        return;
    }
    if (!stopTextTimer_) {
        stopTextTimer_ = new QTimer;
        stopTextTimer_->setSingleShot(true);
        QObject::connect(stopTextTimer_, &QTimer::timeout, stopTextTimer_,
                         [this] { applyStopText(); });
    }
    if (!stopTextTimer_->isActive())
        stopTextTimer_->start(kStopTextMs);
}

void FormsBasicHost::applyStopText()
{
    stop_.load();
    stop_.Text1->setText(pendingStopText_);
    sinceStopText_.restart();
}

void FormsBasicHost::unloadStop()
{
    stop_.unload();
}

void FormsBasicHost::refreshFileControls()
{
    for (const auto& refresh : std::as_const(fileControlRefreshers))
        refresh();
}

bool FormsBasicHost::askForcedDrive(const QString& mark)
{
    if (!driveAsker)
        return false;
    driveAsker(mark);
    return true;
}

} // namespace lumen
