#pragma once

#include <string_view>

namespace tavmoor {

/// The text without the blanks at its ends; other white space stays.
constexpr std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace tavmoor
