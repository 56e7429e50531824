#pragma once

#include "services/windows/program_session.h"

#include <QApplication>

namespace tavmoor {

/// The application with the one boundary of run-time errors: what no step handles ends the program
/// here, after the open project was kept in the recovery folder and the error was shown. Errors
/// that come while it is shown change nothing in that.
class ProgramApplication final : public QApplication {
public:
    ProgramApplication(int& argc, char** argv);

    /// The session whose project is kept; before it is set, an error is only shown.
    void SetSession(ProgramSession* session) { session_ = session; }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    [[noreturn]] void ReportAndEnd(const char* report);

    ProgramSession* session_ = nullptr;
    bool ending_ = false;
};

} // namespace tavmoor
