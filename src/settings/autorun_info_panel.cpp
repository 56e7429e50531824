#include "settings/autorun_info_panel.h"

namespace tavmoor {

Frame3::Frame3(ProgramContext context, QWidget* parent)
    : Panel(context, "Frame3", u"Autorun Info", parent) {}

} // namespace tavmoor
