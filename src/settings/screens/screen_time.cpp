#include "settings/screens/screen_time.h"

#include "core/document/measures.h"
#include "core/text/number_text.h"

#include <cmath>

namespace tavmoor {

ScreenTime CheckScreenTime(std::string_view typed) {
    const auto seconds = ParseNumber(typed);
    if (!seconds) {
        return {std::string(UsualScreenSecondsText), false};
    }
    if (*seconds > MostScreenSeconds || *seconds <= 0) {
        return {std::string(UsualScreenSecondsText), true};
    }
    // The half of the smallest number above zero is zero.
    if (*seconds / 2 <= 0) {
        return {std::string(UsualScreenSecondsText), false};
    }
    return {FormatNumber(std::floor(*seconds)), false};
}

} // namespace tavmoor
