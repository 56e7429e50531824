#pragma once

#include "core/formats/metafile_outline.h"
#include "services/pictures/pixel_target.h"

#include <string_view>

namespace tavmoor {

/// Draws an emf, scaled to the whole target. One file per platform answers this.
/// @param outline what OutlineEmf told of the same bytes
/// @return false for a file whose records turn out damaged, or that takes too much to draw
bool PlayEmf(std::string_view bytes, const MetafileOutline& outline, const PixelTarget& target);

} // namespace tavmoor
