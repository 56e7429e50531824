#include "settings/screens/screen_time.h"

#include "core/text/number_text.h"

#include <cmath>

namespace tavmoor {

ScreenTime CheckScreenTime(std::string_view typed) {
    constexpr const char* UsualSeconds = "5";
    const auto seconds = ParseNumber(typed);
    if (!seconds) {
        return {UsualSeconds, false};
    }
    if (*seconds > MostScreenSeconds || *seconds <= 0) {
        return {UsualSeconds, true};
    }
    // The half of the smallest number above zero is zero.
    if (*seconds / 2 <= 0) {
        return {UsualSeconds, false};
    }
    return {FormatNumber(std::floor(*seconds)), false};
}

} // namespace tavmoor
