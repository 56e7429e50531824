#include "settings/main_settings_panel.h"

namespace tavmoor {

Frame2::Frame2(ProgramContext context, QWidget* parent)
    : Panel(context, "Frame2", u"Main settings", parent) {}

void Frame2::BrowseCdFolder() {}

void Frame2::FocusCdFolder() {}

} // namespace tavmoor
