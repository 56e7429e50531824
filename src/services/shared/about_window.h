#pragma once

#include "services/windows/skinned_window.h"

namespace tavmoor {

struct ShellOutcome;

/// `frmAbout`: the program, its version and how to reach its maker. It closes when it is left.
class frmAbout final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit frmAbout(ProgramContext context);

private:
    QWidget* MakeContact();
    QWidget* MakeButtons();
    void CheckForUpdate();
    /// Says what went wrong, when something did. The window is closed before: a box takes the
    /// focus, and so would take its owner away while it is open.
    void TellFailure(const ShellOutcome& outcome);
};

} // namespace tavmoor
