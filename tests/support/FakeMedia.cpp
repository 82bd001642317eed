#include "support/FakeMedia.h"

namespace lumen::test {

FakeEngine::FakeEngine(bool video)
{
    if (video)
        surface_ = new QWidget;
}

FakeEngine::~FakeEngine()
{
    delete surface_;
}

void FakeEngine::open(const QString& nativePath)
{
    file_ = nativePath;
    calls << QStringLiteral("open ") + nativePath;
    playing_ = autoStart;
    if (!size.isEmpty())
        Q_EMIT videoSizeChanged(size);
}

void FakeEngine::play()
{
    calls << QStringLiteral("play");
    playing_ = true;
}

void FakeEngine::stop()
{
    calls << QStringLiteral("stop");
    playing_ = false;
}

void FakeEngine::pause()
{
    calls << QStringLiteral("pause");
    playing_ = false;
}

void FakeEngine::setFullScreen(bool on)
{
    calls << (on ? QStringLiteral("fullscreen on") : QStringLiteral("fullscreen off"));
}

void FakeEngine::finish()
{
    playing_ = false;
    Q_EMIT ended();
}

FakeWebSurface::FakeWebSurface()
    : widget_(new QWidget)
{}

FakeWebSurface::~FakeWebSurface()
{
    delete widget_;
}

void FakeWebSurface::navigate(const QUrl& url)
{
    urls << url;
    Q_EMIT loadFinished(true);
}

void FakeWebSurface::navigateAway()
{
    urls << QUrl(QStringLiteral("about:blank"));
}

void FakeCdDrive::play(const QString& device, int t)
{
    calls << QStringLiteral("play %1 %2").arg(device).arg(t);
    track = t;
}

std::unique_ptr<MediaEngine> FakeMedia::createEngine(bool video)
{
    auto engine = std::make_unique<FakeEngine>(video);
    engines << engine.get();
    return engine;
}

std::unique_ptr<WebSurface> FakeMedia::createWebSurface()
{
    auto web = std::make_unique<FakeWebSurface>();
    webs << web.get();
    return web;
}

} // namespace lumen::test
