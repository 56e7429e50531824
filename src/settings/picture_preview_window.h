#pragma once

#include "services/window_registry.h"

#include <QRect>

#include <string>

namespace tavmoor {

/// Shows a chosen picture in `Form2`, at the lower right corner of the main window, unless previews
/// are switched off or the path is empty.
/// @param path document form
/// @param main screen geometry of the main window, logical pixels
void ShowPreview(ProgramContext context, const std::string& path, const QRect& main);

} // namespace tavmoor
