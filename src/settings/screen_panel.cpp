#include "settings/screen_panel.h"

namespace tavmoor {

const ScreenPanelDescription SplashScreenPanel{"Frame9", u"Splash screen settings"};
const ScreenPanelDescription ExitScreenPanel{"Frame12", u"Exit window settings"};

ScreenPanel::ScreenPanel(const ScreenPanelDescription& description, ProgramContext context,
                         QWidget* parent)
    : Panel(context, description.frame, description.heading, parent) {}

} // namespace tavmoor
