#pragma once

#include "settings/shared/panel.h"

namespace tavmoor {

class MP3Play;

/// Makes a panel of the main window.
/// @param player plays the sounds of the sound panel; it outlives the panel
Panel* MakePanel(PanelName name, ProgramContext context, MP3Play& player, QWidget* parent);

} // namespace tavmoor
