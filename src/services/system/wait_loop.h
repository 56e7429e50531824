#pragma once

#include <chrono>
#include <functional>

class QObject;

namespace tavmoor {

// Loops that let events run until something has come true. They can nest: an inner one only delays
// the return of the outer one, which looks at its own condition once more.

/// A window sets this dynamic property when it unloads; it ends the loops that wait for it.
inline constexpr const char* UnloadedProperty = "unloaded";

/// Lets events run until `done` says true.
/// @param owner the window that waits; its end ends the loop, as does the end of the program
/// @return false when the loop was ended before `done` said true
bool WaitUntil(const std::function<bool()>& done, const QObject* owner);

/// Lets events run for a time; a program that ends, ends it.
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

/// Ends all loops, and each later one at once; called when the main window unloads.
void EndWaitLoops();
/// Allows loops again; called when a main window loads.
void AllowWaitLoops();

} // namespace tavmoor
