#pragma once

#include <QPoint>
#include <QSize>

namespace tavmoor {

/// Window measures are given in twips, 15 to the logical pixel. This is the one place that turns
/// them into logical pixels and back; Qt scales those to the screen.
inline constexpr int TwipsPerPixel = 15;

constexpr int PixelsOf(int twips) {
    return twips / TwipsPerPixel;
}
constexpr int TwipsOf(int pixels) {
    return pixels * TwipsPerPixel;
}
constexpr QSize PixelsOf(int widthTwips, int heightTwips) {
    return {PixelsOf(widthTwips), PixelsOf(heightTwips)};
}

} // namespace tavmoor
