#pragma once

#include "core/formats/metafile_outline.h"
#include "services/pictures/pixel_target.h"

#include <string_view>

namespace tavmoor {

/// Draws a wmf so that its frame fills the whole target. The same on every platform.
/// @param outline what OutlineWmf told of the same bytes
/// @return false for a file whose drawing takes more than a few seconds
bool PlayWmf(std::string_view bytes, const MetafileOutline& outline, const PixelTarget& target);

} // namespace tavmoor
