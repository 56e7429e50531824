#pragma once

#include "services/system/shell.h"

class QWidget;

namespace tavmoor {

/// Shows what went wrong, when something did.
void ReportFailure(QWidget* owner, const ShellOutcome& outcome);

/// The help command of every window.
void OpenHelpOrTell(QWidget* owner, std::string_view programFolder);

} // namespace tavmoor
