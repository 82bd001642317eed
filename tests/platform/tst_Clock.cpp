// The real clock's waits: events run inside them, the thread sleeps, and an
// ending program leaves them at once.
#include "platform/Clock.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

#include <ctime>

using namespace lumen;

namespace {

double processorMs()
{
    timespec ts{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &ts);
    return ts.tv_sec * 1000.0 + ts.tv_nsec / 1e6;
}

} // namespace

class TestClock : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void waitLastsSleepsAndLetsEventsRun()
    {
        RealClock clock;
        int fired = 0;
        QTimer::singleShot(20, this, [&] { ++fired; });
        QElapsedTimer timer;
        timer.start();
        const double before = processorMs();
        clock.waitUntil(clock.tickCount() + 400);
        const double used = processorMs() - before;
        QVERIFY(timer.elapsed() >= 399);
        QCOMPARE(fired, 1);
        QVERIFY2(used < 40,
                 qPrintable(QStringLiteral("%1 ms of processor in a 400 ms wait").arg(used)));
    }

    void nestedWaitEndsFirst()
    {
        RealClock clock;
        QStringList order;
        QTimer::singleShot(10, this, [&] {
            clock.waitUntil(clock.tickCount() + 50);
            order << QStringLiteral("inner");
        });
        clock.waitUntil(clock.tickCount() + 20);
        order << QStringLiteral("outer");
        QCOMPARE(order, (QStringList{"inner", "outer"}));
    }

    void endingLeavesTheWait()
    {
        RealClock clock;
        QTimer::singleShot(30, this, [&] { clock.setEnding(true); });
        QElapsedTimer timer;
        timer.start();
        clock.waitUntil(clock.tickCount() + 5000);
        QVERIFY(timer.elapsed() < 1000);
        QVERIFY(clock.ending());
        timer.restart();
        clock.waitUntil(clock.tickCount() + 5000); // later waits don't wait at all
        QVERIFY(timer.elapsed() < 50);
    }
};

QTEST_GUILESS_MAIN(TestClock)
#include "tst_Clock.moc"
