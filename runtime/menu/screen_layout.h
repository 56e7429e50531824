#pragma once

#include "menu/palette.h"
#include "menu/screen_model.h"
#include "menu/text_meter.h"

namespace tavmoor {

/// All that the places of a screen depend on.
struct ScreenRequest {
    const ScreenModel& model;
    const Look& look;
    const TextMeter& meter;
    Extent picture{}; ///< natural size; empty when there is none
    int dpi = 96;
};

/// The size of the screen's window in pixels. A side that is not given follows the picture. It
/// follows the look where there is no picture, where the picture is larger than `most`, and where
/// it is too small to leave room for the text.
/// @param most pixels that the window may take; a larger one is made smaller, its ratio kept
Extent ChooseScreenSize(const ScreenRequest& request, Extent most);

enum class TextAlign : std::uint8_t { Left, Center, Right };

/// Where everything stands in a screen's window.
struct ScreenLayout {
    Box picture;
    bool pictureCovers = false; ///< what stands over is cut off; otherwise the picture is whole
    Box text;
    MenuFont font; ///< made so small that the text stands in the window as a whole
    TextAlign align = TextAlign::Center;
};

/// @param client size of the window in pixels
ScreenLayout ArrangeScreen(const ScreenRequest& request, Extent client);

struct ScreenColors {
    Argb back = 0;
    Argb text = 0;
};

/// The author's colours; a text that was left black is made readable on a dark window.
ScreenColors ChooseScreenColors(const ScreenModel& model, const SystemColors& system);

} // namespace tavmoor
