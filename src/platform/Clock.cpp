#include "platform/Clock.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <thread>

namespace lumen {

RealClock::RealClock()
    : start_(std::chrono::duration_cast<std::chrono::milliseconds>(
                 std::chrono::steady_clock::now().time_since_epoch())
                 .count())
{}

qint64 RealClock::tickCount()
{
    const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(
                         std::chrono::steady_clock::now().time_since_epoch())
                         .count();
    return now - start_;
}

void RealClock::waitUntil(qint64 tick)
{
    // A nested event loop that a precise timer ends: events run meanwhile,
    // and the thread sleeps in the loop between them. A wait begun inside
    // another wait ends first, as the classic wait loops did.
    while (!ending()) {
        const qint64 remaining = tick - tickCount();
        if (remaining <= 0)
            break;
        if (!QCoreApplication::instance()) {
            std::this_thread::sleep_for(std::chrono::milliseconds(remaining));
            continue;
        }
        QEventLoop loop;
        QTimer timer;
        timer.setTimerType(Qt::PreciseTimer);
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
        timer.start(int(qMin<qint64>(remaining, 1000)));
        waits_.append(&loop);
        loop.exec();
        waits_.removeOne(&loop);
    }
}

void RealClock::endWaits()
{
    for (QEventLoop* loop : std::as_const(waits_))
        loop->quit();
}

void RealClock::doEvents()
{
    if (QCoreApplication::instance())
        QCoreApplication::processEvents(QEventLoop::AllEvents);
}

} // namespace lumen
