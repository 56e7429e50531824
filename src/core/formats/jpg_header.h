#pragma once

#include "core/formats/pixel_size.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace tavmoor {

/// What the decoder of a jpg makes room for.
struct JpgFrame {
    PixelSize size;
    std::uint8_t components = 0;
    bool isProgressive = false;
};

/// The first frame of a jpg; nothing when the file ends, or the picture's data begin, before it.
/// Nothing behind the frame is read.
std::optional<JpgFrame> ReadJpgFrame(std::string_view jpg);

/// What a walk over the whole of a jpg tells.
struct JpgOutline {
    int scans = 0;                 ///< passes over the picture
    std::uint8_t components = 0;   ///< of the frame that has most
    bool isInSeveralScans = false; ///< a pixel is known only after the last of several scans
    bool isEnded = false;          ///< the data come to their end within the file
};

JpgOutline OutlineJpg(std::string_view jpg);

} // namespace tavmoor
