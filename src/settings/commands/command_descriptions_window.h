#pragma once

#include "core/document/project_document.h"
#include "services/windows/skinned_window.h"

#include <string>

class QGridLayout;
class QLayout;

namespace tavmoor {

class CommandLookSample;
class FieldBinder;
class PictureButton;

/// `Form4`, the descriptions of the six fixed commands and the look of the menu's buttons. It is
/// made once and hidden when it closes; each opening shows the document afresh.
class Form4 final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit Form4(ProgramContext context);

protected:
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] QLayout* MakeDescriptions();
    void AddRow(QGridLayout& grid, std::size_t command);
    [[nodiscard]] QLayout* MakeLook();
    [[nodiscard]] QLayout* MakeLookButtons();
    [[nodiscard]] QWidget* MakeExample();
    [[nodiscard]] QLayout* MakeCommands();

    void ShowDocument();
    /// Gives the look of a project that says nothing of it its usual values.
    void CompleteLook();
    void ChooseColor(const PictureButton& button, std::string CommandLook::*field);
    void ChooseFont();

    FieldBinder* binder_;
    CommandLookSample* sample_ = nullptr;
};

} // namespace tavmoor
