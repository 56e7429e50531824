#pragma once

#include "services/windows/window_registry.h"

class QWidget;

namespace tavmoor {

/// What is asked before a step of the main window is taken. Each shows its own message; the step
/// goes on only when it returns true.
class StepChecks {
public:
    StepChecks(ProgramContext context, QWidget& owner) : context_(context), owner_(owner) {}

    /// A template was chosen; otherwise the template window is offered.
    [[nodiscard]] bool TemplateIsChosen() const;
    /// The folder was chosen; otherwise the folder browser is offered.
    [[nodiscard]] bool FolderIsChosen() const;
    /// The folder was chosen; otherwise says so and shows the main settings.
    [[nodiscard]] bool FolderIsSet() const;
    /// The folder is a full path with a drive; otherwise the browser is offered. "No" opens the
    /// help, on purpose.
    [[nodiscard]] bool FolderIsValid() const;
    /// The template's commands are edited in the panel; otherwise the visual editor is offered.
    [[nodiscard]] bool CommandsAreEditedHere() const;
    /// All that a build needs to start.
    [[nodiscard]] bool BuildMayStart() const;

    /// Shows the canvas in place of the main window, when the project is ready for it.
    void OpenVisualEditor() const;

private:
    [[nodiscard]] bool EditorWasSeen() const;
    void ShowCanvas() const;

    ProgramContext context_;
    QWidget& owner_;
};

} // namespace tavmoor
