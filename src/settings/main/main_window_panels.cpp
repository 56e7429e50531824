#include "settings/main/main_window_panels.h"

#include "settings/commands/commands_panel.h"
#include "settings/screens/screen_panel.h"
#include "settings/screens/screen_panel_description.h"
#include "settings/steps/autorun_info_panel.h"
#include "settings/steps/main_settings_panel.h"
#include "settings/steps/sound_panel.h"

namespace tavmoor {

Panel* MakePanel(PanelName name, ProgramContext context, MP3Play& player, QWidget* parent) {
    switch (name) {
    case PanelName::Frame2:
        return new Frame2(context, parent);
    case PanelName::Frame3:
        return new Frame3(context, parent);
    case PanelName::Frame4:
        return new Frame4(context, parent);
    case PanelName::Frame5:
        return new Frame5(context, player, parent);
    case PanelName::Frame9:
        return new ScreenPanel(SplashScreenPanel, context, parent);
    case PanelName::Frame12:
        break;
    }
    return new ScreenPanel(ExitScreenPanel, context, parent);
}

} // namespace tavmoor
