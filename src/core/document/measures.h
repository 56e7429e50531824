#pragma once

#include <cstdint>
#include <string_view>

namespace tavmoor {

// The units of a project's values, and limits that windows and autorun programs share.

/// A colour 0x00BBGGRR; with SystemColorBit set, the low byte is the number of a system colour.
using ColorValue = std::int32_t;
inline constexpr std::uint32_t SystemColorBit = 0x80000000;

/// Positions and sizes on the canvas, and of windows, are in twips; this many to the pixel at
/// 96 dpi.
inline constexpr int TwipsPerPixel = 15;

/// How long a splash or exit screen stands: while nothing usable is said, and at most.
inline constexpr int UsualScreenSeconds = 5;
inline constexpr std::string_view UsualScreenSecondsText = "5";
inline constexpr int MostScreenSeconds = 60;

} // namespace tavmoor
