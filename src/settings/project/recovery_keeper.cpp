#include "settings/project/recovery_keeper.h"

#include "services/windows/program_session.h"

#include <chrono>

namespace tavmoor {

RecoveryKeeper::RecoveryKeeper(ProgramSession& session, QObject* owner) : timer_(owner) {
    timer_.setObjectName(QStringLiteral("RecoveryTimer"));
    QObject::connect(&timer_, &QTimer::timeout, &timer_,
                     [&session] { session.recovery.KeepIgnoringErrors(session.document); });
}

void RecoveryKeeper::Start() {
    timer_.start(std::chrono::minutes(1));
}

} // namespace tavmoor
