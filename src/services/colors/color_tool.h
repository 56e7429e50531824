#pragma once

#include "services/windows/menu_result.h"
#include "services/windows/skinned_window.h"

namespace tavmoor {

/// The base of the windows that a colour choice leads through. One that closes without a result
/// has cancelled the choice; it closes with the window that asked.
class ColorTool : public SkinnedWindow {
    Q_OBJECT

public:
    using SkinnedWindow::SkinnedWindow;

    /// Whom the tool serves; set once, before it is shown.
    void Serve(const MenuAnswer& answer);

protected:
    void OnUnload() override;

    /// Closes the window before the choice has a result, and leaves it to the caller to give one.
    MenuAnswer CloseUnanswered();

private:
    MenuAnswer answer_;
};

} // namespace tavmoor
