// WebBrowser: the web view control (WebBrowser1) on a WebSurface of the
// media service. Pages are given as URLs; local files as file:// URLs.
#pragma once

#include <QUrl>
#include <QWidget>

#include <memory>

namespace lumen {

class WebSurface;

class WebBrowser : public QWidget {
    Q_OBJECT
public:
    // `surface` may be null: the box then stays empty.
    WebBrowser(const QString& name, std::unique_ptr<WebSurface> surface, QWidget* parent = nullptr);
    ~WebBrowser() override;

    WebSurface* surface() const { return surface_.get(); }

    void Navigate(const QUrl& url);
    void NavigateAway(); // to a blank page
    void GoBack();
    void GoForward();
    QUrl url() const;
    QSize contentsSize() const; // the page's own size in pixels, once loaded

Q_SIGNALS:
    void loadFinished(bool ok);

private:
    std::unique_ptr<WebSurface> surface_;
};

} // namespace lumen
