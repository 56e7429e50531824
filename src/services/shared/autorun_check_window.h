#pragma once

#include "services/windows/skinned_window.h"

class QCheckBox;

namespace tavmoor {

/// `Form13`: checks whether the system starts discs by themselves, and sets it up to do so. It is
/// kept on top; its check box is the program setting that makes the check come up at every start.
class Form13 final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit Form13(ProgramContext context);

    /// Ticks the check box when the setting is on; for a window that is open already.
    void TickWhenSet();

protected:
    void OnLoad() override { TickWhenSet(); }
    void OnUnload() override;

private:
    QWidget* MakeButtons();
    void Check();

    QCheckBox* check1_ = nullptr;
};

} // namespace tavmoor
