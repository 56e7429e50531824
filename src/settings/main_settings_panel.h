#pragma once

#include "settings/panel.h"

namespace tavmoor {

/// `Frame2`, the main settings.
class Frame2 final : public Panel {
    Q_OBJECT

public:
    explicit Frame2(ProgramContext context, QWidget* parent);

    /// Lets the folder be chosen; `Command32`.
    void BrowseCdFolder();
    /// Puts the focus into the field of the folder.
    void FocusCdFolder();
};

} // namespace tavmoor
