#pragma once

#include "services/dialogs/dialog_responder.h"

#include <optional>

namespace tavmoor {

/// Shows the colour dialog with the custom colours as the user left them in this run of the
/// program; all are white at its start. Those in the request do not count.
std::optional<QColor> AskWithCustomColors(ColorRequest request);

} // namespace tavmoor
