#include "display/QtWebSurface.h"

#include "platform/Controls.h"

#include <QFileInfo>
#include <QVBoxLayout>
#include <QWebEngineDownloadRequest>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineView>
#include <QWidget>

namespace lumen {

namespace {

const QUrl& blankPage()
{
    static const QUrl blank(QStringLiteral("about:blank"));
    return blank;
}

} // namespace

QtWebSurface::QtWebSurface()
    : host_(named<QWidget>(QStringLiteral("WebSurface")))
{
    auto* layout = new QVBoxLayout(host_);
    layout->setContentsMargins(0, 0, 0, 0);
    QPalette palette = host_->palette();
    palette.setColor(QPalette::Window, Qt::white);
    host_->setPalette(palette);
    host_->setAutoFillBackground(true);
}

QtWebSurface::~QtWebSurface()
{
    // The page must go before its profile.
    delete host_.data();
    delete profile_;
}

bool QtWebSurface::showsBlank(const QUrl& url)
{
    const QString suffix = QFileInfo(url.path()).suffix().toUpper();
    return suffix == u"SWF" || suffix == u"XV3" || suffix == u"CO";
}

QWebEngineView* QtWebSurface::view()
{
    if (view_)
        return view_;
    if (!profile_) {
        profile_ = new QWebEngineProfile(this); // no storage name: nothing is kept on disk
        connect(profile_, &QWebEngineProfile::downloadRequested, this,
                [this](QWebEngineDownloadRequest* download) {
                    ++refusedDownloads_;
                    download->cancel();
                });
    }
    view_ = named<QWebEngineView>(QStringLiteral("WebView"), host_);
    view_->setPage(new QWebEnginePage(profile_, view_));
    host_->layout()->addWidget(view_);
    connect(view_, &QWebEngineView::loadFinished, this, &WebSurface::loadFinished);
    return view_;
}

void QtWebSurface::navigate(const QUrl& url)
{
    view()->setUrl(showsBlank(url) ? blankPage() : url);
}

void QtWebSurface::navigateAway()
{
    if (view_)
        view_->setUrl(blankPage());
    else
        blank_ = blankPage();
}

void QtWebSurface::back()
{
    if (view_)
        view_->back();
}

void QtWebSurface::forward()
{
    if (view_)
        view_->forward();
}

QUrl QtWebSurface::url() const
{
    return view_ ? view_->url() : blank_;
}

} // namespace lumen

namespace lumen {

QSize QtWebSurface::contentsSize() const
{
    return view_ ? view_->page()->contentsSize().toSize() : QSize();
}

} // namespace lumen
