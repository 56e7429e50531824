#include "support/program_windows.h"

#include "settings/main/settings_window_list.h"

namespace tavmoor::test {

ProgramWindows::ProgramWindows() {
    RegisterSettingsWindows(Context());
}

ProgramWindows::~ProgramWindows() {
    windows.Unload(WindowName::Form1);
}

} // namespace tavmoor::test
