#pragma once

#include <cstddef>
#include <cstdint>

namespace tavmoor {

/// Pixels to draw into: 0xAARRGGBB with the colours multiplied by alpha, top row first. The owner
/// has made them transparent.
struct PixelTarget {
    std::uint8_t* pixels;
    int width;
    int height;
    std::ptrdiff_t bytesPerRow;
};

} // namespace tavmoor
