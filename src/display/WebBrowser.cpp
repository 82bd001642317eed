#include "display/WebBrowser.h"

#include "platform/Media.h"

#include <QVBoxLayout>

namespace lumen {

WebBrowser::WebBrowser(const QString& name, std::unique_ptr<WebSurface> surface, QWidget* parent)
    : QWidget(parent)
    , surface_(std::move(surface))
{
    setObjectName(name);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (!surface_)
        return;
    if (QWidget* view = surface_->widget())
        layout->addWidget(view);
    connect(surface_.get(), &WebSurface::loadFinished, this, &WebBrowser::loadFinished);
}

WebBrowser::~WebBrowser() = default;

void WebBrowser::Navigate(const QUrl& url)
{
    if (surface_)
        surface_->navigate(url);
}

void WebBrowser::NavigateAway()
{
    if (surface_)
        surface_->navigateAway();
}

void WebBrowser::GoBack()
{
    if (surface_)
        surface_->back();
}

void WebBrowser::GoForward()
{
    if (surface_)
        surface_->forward();
}

QUrl WebBrowser::url() const
{
    return surface_ ? surface_->url() : QUrl();
}

QSize WebBrowser::contentsSize() const { return surface_ ? surface_->contentsSize() : QSize(); }

} // namespace lumen
