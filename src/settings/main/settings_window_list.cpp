#include "settings/main/settings_window_list.h"

#include "services/shared/service_window_list.h"
#include "settings/commands/command_descriptions_window.h"
#include "settings/final_step/build_window.h"
#include "settings/main/main_menu.h"
#include "settings/main/main_window.h"
#include "settings/program/program_settings_window.h"
#include "settings/program/program_splash_window.h"
#include "settings/template/template_window.h"

namespace tavmoor {

void RegisterSettingsWindows(ProgramContext context) {
    RegisterServiceWindows(context);
    Register<Form1>(context, WindowName::Form1);
    Register<Form7>(context, WindowName::Form7);
    Register<Form3>(context, WindowName::Form3);
    Register<Form5>(context, WindowName::Form5);
    Register<Form4>(context, WindowName::Form4);
    Register<Form8>(context, WindowName::Form8);
    Register<menu1>(context, WindowName::menu1);
}

} // namespace tavmoor
