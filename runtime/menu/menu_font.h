#pragma once

#include <string>

namespace tavmoor {

/// A font. As an author's choice, an empty face means that none was chosen, and the look's own
/// counts whatever the size says: the configuration has a size even then.
struct MenuFont {
    std::string face;
    int points = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;

    bool operator==(const MenuFont&) const = default;
};

} // namespace tavmoor
