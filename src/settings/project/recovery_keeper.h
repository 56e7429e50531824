#pragma once

#include <QTimer>

namespace tavmoor {

struct ProgramSession;

/// Keeps the recovery copy of the open project up to date while the main window lives, once a
/// minute and silently: what a crash can cost is the work of a minute.
class RecoveryKeeper {
public:
    RecoveryKeeper(ProgramSession& session, QObject* owner);

    void Start();
    void Stop() { timer_.stop(); }

private:
    QTimer timer_;
};

} // namespace tavmoor
