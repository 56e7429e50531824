#pragma once

#include "services/windows/skinned_window.h"
#include "settings/main/menu_action.h"

#include <array>

class QFrame;

namespace tavmoor {

/// `menu1`, the drop-down of the main window: `Frame1` has the File entries, `Frame2` the Program
/// entries. An entry only stores its action in the session and closes the menu.
class menu1 final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit menu1(ProgramContext context);

    /// Shows one side only; called before the menu comes up.
    void ShowSide(MenuSide side);

private:
    QFrame* MakeSide(MenuSide side, const char* objectName);
    void Choose(MenuAction action);

    std::array<QFrame*, 2> sides_{};
};

} // namespace tavmoor
