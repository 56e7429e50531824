#pragma once

#include "menu/geometry.h"

#include <optional>
#include <string_view>

namespace tavmoor {

/// Pictures with more pixels are refused: one of them in memory takes 4 bytes to the pixel.
inline constexpr long long MostPicturePixels = 64LL * 1024 * 1024;

/// The width and height that the head of a bmp, jpg, gif, ico, cur, emf or placeable wmf file
/// tells, before anything is decoded; a metafile's in pixels at 96 dpi. Nothing for any other or
/// damaged file and for a picture of more than MostPicturePixels.
std::optional<Extent> ReadPictureSize(std::string_view bytes);

} // namespace tavmoor
