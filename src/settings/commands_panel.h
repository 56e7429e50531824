#pragma once

#include "settings/panel.h"

namespace tavmoor {

/// `Frame4`, the six fixed commands.
class Frame4 final : public Panel {
    Q_OBJECT

public:
    explicit Frame4(ProgramContext context, QWidget* parent);
};

} // namespace tavmoor
