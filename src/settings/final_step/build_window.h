#pragma once

#include "disc/build_driver.h"
#include "services/windows/skinned_window.h"
#include "settings/final_step/build_window_events.h"

class QCheckBox;
class QLayout;

namespace tavmoor {

class TextBox;
class ValueLabel;

/// `Form8`, the final step: takes the autorun's name and builds it into the disc's folder. While a
/// build runs the window cannot be closed.
class Form8 final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit Form8(ProgramContext context);

    /// The build command.
    /// @throws RuntimeError of the build; the window is ready for another one then
    void Build();

protected:
    void OnLoad() override;
    bool MayUnload() override;

private:
    class BuildTime;

    QLayout* MakeFields();
    QWidget* MakeProgress();
    QLayout* MakeButtons();
    [[nodiscard]] BuildControls Controls() const;
    void ShowOutcome(const BuildOutcome& outcome);
    void MarkName(const BuildOutcome& outcome);
    void GoBackToFolder();
    void OpenDiscFolder();

    ValueLabel* folder_ = nullptr;
    TextBox* name_ = nullptr;
    QCheckBox* start_ = nullptr;
    StatusLabel* status_ = nullptr;
    StatusLabel* note_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QAbstractButton* build_ = nullptr;
    QAbstractButton* open_ = nullptr; ///< the disc's folder, once it is built
    bool building_ = false;
};

} // namespace tavmoor
