#include "settings/sound_panel.h"

namespace tavmoor {

Frame5::Frame5(ProgramContext context, MP3Play& /*player*/, QWidget* parent)
    : Panel(context, "Frame5", u"Sound settings", parent) {}

} // namespace tavmoor
