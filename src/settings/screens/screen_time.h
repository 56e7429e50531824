#pragma once

#include <string>
#include <string_view>

namespace tavmoor {

struct ScreenTime {
    std::string text;        ///< what the field holds from now on: whole seconds
    bool outOfRange = false; ///< the typed number was no time from above 0 to MostScreenSeconds
};

/// What becomes of a typed time: the whole-number part of a usable one, otherwise
/// UsualScreenSeconds.
ScreenTime CheckScreenTime(std::string_view typed);

} // namespace tavmoor
