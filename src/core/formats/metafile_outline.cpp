#include "core/formats/metafile_outline.h"

#include <algorithm>

namespace tavmoor {

namespace {

std::optional<std::int64_t> Pixels(std::int64_t length, int unitsPerInch) {
    constexpr std::int64_t Most = 1'000'000;
    const std::int64_t pixels = (length * MetafilePixelsPerInch + unitsPerInch / 2) / unitsPerInch;
    if (length <= 0 || pixels > Most) {
        return std::nullopt;
    }
    return std::max<std::int64_t>(pixels, 1);
}

} // namespace

std::optional<PixelSize> MetafileSize(std::int64_t width, std::int64_t height, int unitsPerInch) {
    if (unitsPerInch <= 0) {
        return std::nullopt;
    }
    const auto wide = Pixels(width, unitsPerInch);
    const auto high = Pixels(height, unitsPerInch);
    return wide && high ? std::optional(PixelSize{*wide, *high}) : std::nullopt;
}

} // namespace tavmoor
