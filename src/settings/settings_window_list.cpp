#include "settings/settings_window_list.h"

#include "services/shared/service_window_list.h"
#include "settings/build_window.h"
#include "settings/command_descriptions_window.h"
#include "settings/main_menu.h"
#include "settings/main_window.h"
#include "settings/picture_preview_window.h"
#include "settings/program_settings_window.h"
#include "settings/program_splash_window.h"
#include "settings/template_window.h"

namespace tavmoor {

void RegisterSettingsWindows(ProgramContext context) {
    RegisterServiceWindows(context);
    Register<Form1>(context, WindowName::Form1);
    Register<Form2>(context, WindowName::Form2);
    Register<Form7>(context, WindowName::Form7);
    Register<Form3>(context, WindowName::Form3);
    Register<Form5>(context, WindowName::Form5);
    Register<Form4>(context, WindowName::Form4);
    Register<Form8>(context, WindowName::Form8);
    Register<menu1>(context, WindowName::menu1);
}

} // namespace tavmoor
