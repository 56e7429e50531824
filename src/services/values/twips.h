#pragma once

#include "core/document/measures.h"

#include <QPoint>
#include <QSize>

namespace tavmoor {

// Window measures are given in twips. This is the one place that turns them into logical pixels and
// back; Qt scales those to the screen.

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
