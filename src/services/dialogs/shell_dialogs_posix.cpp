#include "services/dialogs/shell_dialogs.h"

namespace tavmoor {

bool ShowShellDialog(const ShellRequest& /*request*/) {
    return false;
}

} // namespace tavmoor
