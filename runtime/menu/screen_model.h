#pragma once

#include "menu/menu_model.h"

#include <optional>
#include <string_view>

namespace tavmoor {

/// Where a picture or a text stands on a screen.
enum class ScreenPlace : std::uint8_t {
    TopLeft,
    TopRight,
    TopCenter,
    BottomLeft,
    BottomRight,
    BottomCenter,
    Center,
};

/// A screen that is shown for a while: the splash screen before the menu, or the exit screen after
/// it.
struct ScreenModel {
    bool shown = false;
    bool clickCloses = false; ///< before its time is over
    int seconds = 0;          ///< how long it is shown, 1 to MostScreenSeconds
    Extent size;              ///< pixels at 96 dpi; 0 for a side that is not given
    ColorValue color = 0;
    std::string picture; ///< name in the package; "" for none
    MenuText text;
    std::optional<ScreenPlace> picturePlace; ///< nothing where none was chosen
    ScreenPlace textPlace = ScreenPlace::Center;
};

ScreenModel MakeScreenModel(const ScreenSpec& screen);

/// The seconds that a stored time says, 1 to MostScreenSeconds, fractions cut; UsualScreenSeconds
/// for any other text.
int ScreenSeconds(std::string_view text);

} // namespace tavmoor
