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

void FormsBasicHost::setStopText(const QString& text)
{
    stop_.load();
    stop_.Text1->setText(text);
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
