#pragma once

#include "core/formats/pixel_size.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace tavmoor {

/// The header of a bitmap as it lies behind a bmp's file header, and alone in metafiles.
struct BitmapHeader {
    PixelSize size; ///< rows may run from the top down, told by a negative height
    std::uint32_t headerBytes = 0;
    std::uint32_t paletteBytes = 0; ///< of the palette, or of the masks that stand in its place
    std::uint16_t bits = 0;         ///< of a pixel
    std::uint32_t compression = 0;
};

/// @return nothing when the header is cut off or tells no size
std::optional<BitmapHeader> ReadBitmapHeader(std::string_view bitmap);

/// True when `data`, which begins with the first row, holds every row; of packed rows, of which
/// each has a length of its own, at least one row's end.
bool HoldsAllRows(const BitmapHeader& header, std::string_view data);

/// What precedes a bitmap in a file.
inline constexpr std::uint32_t BmpFileHeaderBytes = 14;

/// A bmp file.
struct BmpHeader {
    PixelSize size;
    bool isWhole = false; ///< every row lies in the file
};

std::optional<BmpHeader> ReadBmpHeader(std::string_view bmp);

} // namespace tavmoor
