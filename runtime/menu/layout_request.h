#pragma once

#include "menu/look.h"
#include "menu/text_meter.h"

namespace tavmoor {

/// All that the places of the menu depend on.
struct LayoutRequest {
    const MenuModel& model;
    const Look& look;
    const MenuFonts& fonts;
    const TextMeter& meter;
    Extent client{}; ///< pixels
    int dpi = 96;
    Extent logoPicture{};           ///< natural size; empty for none
    bool backgroundPicture = false; ///< there is one
    bool panel = false;             ///< the description has a panel behind it
};

} // namespace tavmoor
