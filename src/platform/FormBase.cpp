#include "platform/FormBase.h"

#include <QCloseEvent>
#include <QEventLoop>

namespace lumen {

FormBase::FormBase(const QString& name, QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
    setObjectName(name);
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

void FormBase::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (modalLoop_)
        modalLoop_->quit();
}

} // namespace lumen
