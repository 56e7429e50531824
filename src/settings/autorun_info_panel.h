#pragma once

#include "settings/panel.h"

namespace tavmoor {

/// `Frame3`, titles and main texts.
class Frame3 final : public Panel {
    Q_OBJECT

public:
    explicit Frame3(ProgramContext context, QWidget* parent);
};

} // namespace tavmoor
