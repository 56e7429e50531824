#pragma once

#include "menu/menu_font.h"

#include <string>
#include <string_view>

namespace tavmoor {

// The storage forms of a configuration, freed of the code page and of texts that hold numbers.

/// A stored text as UTF-8, with LF as line break.
std::string Utf8Text(std::string_view bytes);

/// A font from its stored parts; a size that is no number is 0 points.
MenuFont StoredFont(std::string_view face, std::string_view size, bool bold, bool italic,
                    bool underline = false);

/// The text forms of "yes": what the windows of several versions have stored.
bool SaysYes(std::string_view text);

} // namespace tavmoor
