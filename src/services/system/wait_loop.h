#pragma once

#include <chrono>

class QObject;

namespace tavmoor {

// Loops that let events run within a handler. They can nest: an inner one only delays the return of
// the outer one.

/// Lets events run for a time.
void WaitFor(std::chrono::milliseconds time);

/// Lets the pending events run once.
void LetEventsRun();
/// The same, while the user's keys and clicks wait.
void LetEventsRunWithoutInput();

/// Marks another loop, such as a dialog's, for DeleteAfterWaits, for as long as it runs. Every
/// place that lets events run within a handler has one.
class RunningLoop {
public:
    RunningLoop();
    RunningLoop(const RunningLoop&) = delete;
    RunningLoop& operator=(const RunningLoop&) = delete;
    ~RunningLoop();
};

/// Deletes an object once control is back in the program's own event loop, below every loop that
/// runs now: a plain deleteLater may take the object away from code that waits in one of its
/// handlers.
void DeleteAfterWaits(QObject& object);

} // namespace tavmoor
