#include "support/program_windows.h"

#include "settings/main/main_window.h"
#include "settings/main/settings_window_list.h"

namespace tavmoor::test {

ProgramWindows::ProgramWindows() {
    RegisterSettingsWindows(Context());
}

ProgramWindows::~ProgramWindows() {
    windows.Unload(WindowName::Form1);
}

QWidget& ProgramWindows::ShowPanel(PanelName name) {
    return static_cast<Form1&>(Main()).ShowPanel(name);
}

} // namespace tavmoor::test
