#include "settings/commands_panel.h"

namespace tavmoor {

Frame4::Frame4(ProgramContext context, QWidget* parent)
    : Panel(context, "Frame4", u"Set commands to run target files", parent) {}

} // namespace tavmoor
