#pragma once

#include <string>
#include <string_view>

namespace tavmoor {

/// How long a screen may stand, in seconds.
inline constexpr int MostScreenSeconds = 60;

struct ScreenTime {
    std::string text;        ///< what the field holds from now on: whole seconds
    bool outOfRange = false; ///< the typed number was no time from above 0 to MostScreenSeconds
};

/// What becomes of a typed time: the whole-number part of a usable one, otherwise "5".
ScreenTime CheckScreenTime(std::string_view typed);

} // namespace tavmoor
