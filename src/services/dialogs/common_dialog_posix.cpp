#include "services/dialogs/shell_dialogs.h"

namespace tavmoor {

bool ShowPlatformShellDialog(const ShellRequest& /*request*/) {
    return false;
}

} // namespace tavmoor
