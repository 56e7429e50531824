#include "core/text/character_set.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tavmoor {

int CodePageOfCharacterSet(int characterSet, int fallback) {
    static constexpr std::array<std::pair<int, int>, 10> Sets{{
        {0, 1252},
        {161, 1253},
        {162, 1254},
        {163, 1258},
        {177, 1255},
        {178, 1256},
        {186, 1257},
        {204, 1251},
        {222, 874},
        {238, 1250},
    }};
    const auto* const found =
        std::find_if(Sets.begin(), Sets.end(),
                     [characterSet](const auto& set) { return set.first == characterSet; });
    return found == Sets.end() ? fallback : found->second;
}

} // namespace tavmoor
