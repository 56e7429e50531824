#include "settings/picture_preview_window.h"

namespace tavmoor {

void ShowPreview(ProgramContext /*context*/, const std::string& /*path*/, const QRect& /*main*/) {}

} // namespace tavmoor
