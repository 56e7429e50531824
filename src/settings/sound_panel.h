#pragma once

#include "settings/panel.h"

namespace tavmoor {
class MP3Play;
/// `Frame5`, the sounds of the autorun.
class Frame5 final : public Panel {
    Q_OBJECT

public:
    Frame5(ProgramContext context, MP3Play& player, QWidget* parent);
};

} // namespace tavmoor
