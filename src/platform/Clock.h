// The millisecond clock and the waits of the program. One thread runs
// everything; a wait lets events run while it lasts, but sleeps in the event
// loop instead of spinning, so that a waiting program uses almost no
// processor. Tests replace the clock with one that jumps.
#pragma once

#include <QList>
#include <QtGlobal>

class QEventLoop;

namespace lumen {

class Clock {
public:
    virtual ~Clock() = default;

    // GetTickCount: a monotonic millisecond count.
    virtual qint64 tickCount() = 0;

    // Lets events run until tickCount() reaches `tick`, or at once when the
    // program is ending.
    virtual void waitUntil(qint64 tick) = 0;

    // DoEvents: lets the events that are waiting run once.
    virtual void doEvents() = 0;

    // The program is closing: waits and long loops give up at once.
    bool ending() const { return ending_; }
    void setEnding(bool ending)
    {
        ending_ = ending;
        if (ending)
            endWaits();
    }

protected:
    virtual void endWaits() {}

private:
    bool ending_ = false;
};

class RealClock : public Clock {
public:
    RealClock();
    qint64 tickCount() override;
    void waitUntil(qint64 tick) override;
    void doEvents() override;

protected:
    void endWaits() override;

private:
    qint64 start_;
    QList<QEventLoop*> waits_; // innermost last
};

} // namespace lumen
