#pragma once

#include "core/document/project_reader.h"
#include "services/windows/window_registry.h"

class QWidget;

namespace tavmoor {

/// What the program does while a project is read.
class ProjectListener final : public ProjectReaderListener {
public:
    ProjectListener(ProgramContext context, QWidget& owner) : context_(context), owner_(owner) {}

    void ShowMessage(std::string_view text, std::string_view title) override;
    void FontRead(std::string_view path) override;
    void LetEventsRun() override;
    void ApplyTemplateCapabilities() override;
    void ProjectTitleChanged(std::string_view path) override;

private:
    ProgramContext context_;
    QWidget& owner_;
};

} // namespace tavmoor
