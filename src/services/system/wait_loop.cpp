#include "services/system/wait_loop.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QVariant>

#include <utility>
#include <vector>

namespace tavmoor {

namespace {

bool loopsEnded = false;

/// How many of these loops run, one within the other.
int loopsRunning = 0;

/// What is to be deleted when the outermost loop has ended.
std::vector<QPointer<QObject>> deletedAfterWaits;

/// How often a condition is looked at while no event comes.
constexpr std::chrono::milliseconds Tick{10};

} // namespace

RunningLoop::RunningLoop() {
    ++loopsRunning;
}

RunningLoop::~RunningLoop() {
    if (--loopsRunning > 0) {
        return;
    }
    for (const auto& object : std::exchange(deletedAfterWaits, {})) {
        if (object) {
            object->deleteLater();
        }
    }
}

bool WaitUntil(const std::function<bool()>& done, const QObject* owner) {
    const RunningLoop running;
    const QPointer<const QObject> alive(owner);
    QTimer tick;
    tick.start(Tick);
    // Windows unload by DeleteAfterWaits, so that the code that waits here never comes back to one
    // that is gone.
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
    const RunningLoop running;
    QCoreApplication::processEvents();
}

void LetEventsRunWithoutInput() {
    const RunningLoop running;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DeleteAfterWaits(QObject& object) {
    if (loopsRunning > 0) {
        deletedAfterWaits.emplace_back(&object);
    } else {
        object.deleteLater();
    }
}

void EndWaitLoops() {
    loopsEnded = true;
}

void AllowWaitLoops() {
    loopsEnded = false;
}

} // namespace tavmoor
