#pragma once

#include "core/formats/picture_format.h"

#include <cstdint>
#include <string_view>

namespace tavmoor {

/// What the headers of a raster picture tell before anything of it is decoded.
struct RasterOutline {
    /// The file holds all the data it announces, in no more passes over the picture than pictures
    /// have. Decoders fill up what is missing with grey.
    bool whole = false;
    /// Memory that decoding takes at most for each pixel.
    std::uint32_t bytesPerPixel = 4;
};

RasterOutline OutlineRaster(PictureFormat format, std::string_view bytes);

} // namespace tavmoor
