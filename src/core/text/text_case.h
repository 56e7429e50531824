#pragma once

#include <cstdint>
#include <string_view>

namespace tavmoor {

// Keys, section names and file extensions are compared without regard to the case of A to Z.

constexpr char LowerCase(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A'))
                                                : character;
}

constexpr bool EqualWithoutCase(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (LowerCase(a[i]) != LowerCase(b[i])) {
            return false;
        }
    }
    return true;
}

constexpr bool EndsWithoutCase(std::string_view text, std::string_view ending) {
    return text.size() >= ending.size() &&
           EqualWithoutCase(text.substr(text.size() - ending.size()), ending);
}

} // namespace tavmoor
