#pragma once

#include "core/formats/pixel_size.h"

#include <optional>
#include <string_view>

namespace tavmoor {

/// The first picture of a gif; those behind it, of an animation, are not looked at.
struct GifHeader {
    PixelSize size;       ///< the screen or the picture's far corner, whichever is larger, since
                          ///< decoders differ in which one they fill
    bool isWhole = false; ///< its data come to their end within the file
};

/// @return nothing when the file has no picture, or ends before it is described
std::optional<GifHeader> ReadGifHeader(std::string_view gif);

} // namespace tavmoor
