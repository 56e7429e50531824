#pragma once

#include "services/windows/skinned_window.h"

#include <array>

class QCheckBox;
class QRadioButton;

namespace tavmoor {

class PathBox;

/// `Form3`, the settings of the program itself. They are stored when the window is confirmed; every
/// other end leaves them as they were.
class Form3 final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit Form3(ProgramContext context);

protected:
    void OnLoad() override;
    void OnActivate() override { ShowAutoplayCheck(); }

private:
    static constexpr std::size_t FlagCount = 4;

    QWidget* MakeFolderGroup();
    QWidget* MakeAutorunRow();
    QWidget* MakeButtons();
    void ShowFolderSetting();
    void ShowAutoplayCheck();
    void ChooseFolder();
    void OpenAutorunCheck();
    void Store();

    std::array<QCheckBox*, FlagCount> flags_{};
    QRadioButton* option1_ = nullptr;
    QRadioButton* option2_ = nullptr;
    PathBox* text1_ = nullptr;
    /// The autorun setting as it was last shown; the autorun check may change it meanwhile.
    bool shownAutoplayCheck_ = false;
};

} // namespace tavmoor
