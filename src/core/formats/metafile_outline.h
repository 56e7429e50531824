#pragma once

#include "core/formats/pixel_size.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace tavmoor {

/// A rectangle in the units of a metafile; an extent may be negative.
struct MetafileFrame {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// What a metafile tells once all its records were walked over and found to lie in the file.
struct MetafileOutline {
    std::size_t records = 0;     ///< position of the first record that draws
    std::size_t recordCount = 0; ///< the last one, which ends the list, included
    PixelSize size;              ///< natural size
    MetafileFrame frame;         ///< of wmf: what the natural size shows
};

/// Units to the inch that make a unit a pixel.
inline constexpr int MetafilePixelsPerInch = 96;

/// The natural size of a metafile from its extents, each at least one pixel; nothing when one is
/// not above 0 or beyond a million pixels, or when the units are 0.
std::optional<PixelSize> MetafileSize(std::int64_t width, std::int64_t height, int unitsPerInch);

} // namespace tavmoor
