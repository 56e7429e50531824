#pragma once

#include "services/skinned_window.h"

class QGridLayout;
class QLayout;

namespace tavmoor {

class CommandLookSample;
class FieldBinder;
class PictureButton;

/// `Form4`, the descriptions of the six fixed commands and the look of the menu's buttons. It is
/// made once and hidden when it closes; each opening shows the document afresh. The descriptions
/// are stored as they are typed, the look when the window closes.
class Form4 final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit Form4(ProgramContext context);

protected:
    void showEvent(QShowEvent* event) override;
    void OnHideByUser() override;

private:
    [[nodiscard]] QLayout* MakeDescriptions();
    void AddRow(QGridLayout& grid, int row);
    [[nodiscard]] QLayout* MakeLook();
    [[nodiscard]] QLayout* MakeLookButtons();
    [[nodiscard]] QWidget* MakeExample();
    [[nodiscard]] QLayout* MakeCommands();

    void ShowDocument();
    void ShowCommandTitles();
    void ShowLook();
    void StoreLook();
    void ChooseColor(const PictureButton& button, bool ofText);
    void ChooseFont();

    FieldBinder* binder_ = nullptr;
    CommandLookSample* sample_ = nullptr;
};

} // namespace tavmoor
