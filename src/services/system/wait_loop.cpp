#include "services/system/wait_loop.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>

#include <utility>
#include <vector>

namespace tavmoor {

namespace {

/// How many of these loops run, one within the other.
int loopsRunning = 0;

/// What is to be deleted when the outermost loop has ended.
std::vector<QPointer<QObject>> deletedAfterWaits;

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

void WaitFor(std::chrono::milliseconds time) {
    const RunningLoop running;
    QTimer end;
    end.setSingleShot(true);
    end.start(time);
    while (end.isActive()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
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

} // namespace tavmoor
