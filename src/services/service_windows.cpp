#include "services/service_windows.h"

namespace tavmoor {

void RegisterServiceWindows(ProgramContext /*context*/) {}

} // namespace tavmoor
