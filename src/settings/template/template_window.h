#pragma once

#include "services/windows/skinned_window.h"

#include <optional>
#include <string>

class QBoxLayout;
class QListWidget;
class QRadioButton;
class QTextEdit;

namespace tavmoor {

class TemplatePicture;

/// `Form7`, in which the project's working environment is chosen: a simple template of those in the
/// program's folder, or the visual editor. The folder is read at each opening.
class Form7 final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit Form7(ProgramContext context);

    /// The Ok command: binds the project to what is chosen and closes the window.
    void SelectTemplate();

protected:
    void OnLoad() override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QWidget* MakeChoice();
    QBoxLayout* MakeProperties();
    QBoxLayout* MakeButtons();
    void ConnectControls();

    void ShowChosenRow();
    void ShowPreviewOf(const std::string& descriptorPath);
    /// The chosen row of `List1`; it has the same number in `List3`.
    [[nodiscard]] std::optional<int> ChosenRow() const;

    QRadioButton* editor_ = nullptr;
    QRadioButton* simple_ = nullptr;
    QListWidget* names_ = nullptr;
    QListWidget* paths_ = nullptr;
    QTextEdit* description_ = nullptr;
    TemplatePicture* picture_ = nullptr;
};

} // namespace tavmoor
