#include "services/wait_loop.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QVariant>

namespace tavmoor {

namespace {

bool loopsEnded = false;

/// How often a condition is looked at while no event comes.
constexpr std::chrono::milliseconds Tick{10};

} // namespace

bool WaitUntil(const std::function<bool()>& done, const QObject* owner) {
    const QPointer<const QObject> alive(owner);
    QTimer tick;
    tick.start(Tick);
    // An unloaded window is deleted only once control is back in the event loop, so that the code
    // that waits here never comes back to a window that is gone.
    while (!loopsEnded && alive && !alive->property(UnloadedProperty).toBool()) {
        if (done()) {
            return true;
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return alive && done();
}

void WaitFor(std::chrono::milliseconds time) {
    QElapsedTimer timer;
    timer.start();
    WaitUntil([&] { return timer.hasExpired(time.count()); }, QCoreApplication::instance());
}

void LetEventsRun() {
    QCoreApplication::processEvents();
}

void EndWaitLoops() {
    loopsEnded = true;
}

void AllowWaitLoops() {
    loopsEnded = false;
}

} // namespace tavmoor
