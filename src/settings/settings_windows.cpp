#include "settings/settings_windows.h"

#include "services/service_windows.h"
#include "settings/build_window.h"
#include "settings/main_menu.h"
#include "settings/main_window.h"

namespace tavmoor {

namespace {

template <typename Window>
void Register(ProgramContext context, WindowName name) {
    context.windows.Register(name, [context] { return new Window(context); });
}

} // namespace

void RegisterSettingsWindows(ProgramContext context) {
    RegisterServiceWindows(context);
    Register<Form1>(context, WindowName::Form1);
    Register<Form8>(context, WindowName::Form8);
    Register<menu1>(context, WindowName::menu1);
}

} // namespace tavmoor
