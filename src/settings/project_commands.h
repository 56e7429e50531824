#pragma once

#include "services/window_registry.h"

class QWidget;

namespace tavmoor {

/// The commands that act on the project as a whole.
class ProjectCommands {
public:
    ProjectCommands(ProgramContext context, QWidget& owner) : context_(context), owner_(owner) {}

    void NewProject();
    void OpenProject();
    void OpenExample();
    void SaveProject();
    void SaveProjectAs();

    /// Before a document that differs from its file is dropped: saves it in the recovery folder,
    /// silently.
    void KeepUnsaved();

private:
    ProgramContext context_;
    QWidget& owner_;
};

} // namespace tavmoor
