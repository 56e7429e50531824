#pragma once

#include <cstdint>

namespace tavmoor {

/// A width and a height in pixels as a picture's header tells them, neither above 2^31.
struct PixelSize {
    std::int64_t width = 0;
    std::int64_t height = 0;

    [[nodiscard]] bool IsEmpty() const noexcept { return width <= 0 || height <= 0; }
    [[nodiscard]] std::int64_t Pixels() const noexcept { return width * height; }
    bool operator==(const PixelSize&) const = default;
};

} // namespace tavmoor
