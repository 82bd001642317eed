// The web view on Qt WebEngine. The view itself is made on the first page
// shown, so that a program that never shows a page never starts the browser
// engine; until then the surface is an empty white box. Pages load through a
// private profile that keeps nothing on disk and refuses every download
// without a word: a file the view can't show leaves the page as it was.
// Flash movies and the two 3D formats ("SWF", "XV3", "CO") have no plug-in
// here and show a blank page.
#pragma once

#include "platform/Media.h"

#include <QPointer>
#include <QUrl>

class QWebEngineProfile;
class QWebEngineView;

namespace lumen {

class QtWebSurface : public WebSurface {
    Q_OBJECT
public:
    QtWebSurface();
    ~QtWebSurface() override;

    QWidget* widget() override { return host_.data(); }
    void navigate(const QUrl& url) override;
    void navigateAway() override;
    void back() override;
    void forward() override;
    QUrl url() const override;
    QSize contentsSize() const override;

    bool hasView() const { return !view_.isNull(); }
    int refusedDownloads() const { return refusedDownloads_; }

    // True for the pages shown as about:blank.
    static bool showsBlank(const QUrl& url);

private:
    QWebEngineView* view();

    QPointer<QWidget> host_;
    QPointer<QWebEngineView> view_;
    QWebEngineProfile* profile_ = nullptr; // a child of this surface, deleted after the view
    QUrl blank_;
    int refusedDownloads_ = 0;
};

} // namespace lumen
