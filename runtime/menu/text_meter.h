#pragma once

#include "menu/geometry.h"
#include "menu/menu_font.h"

#include <string>

namespace tavmoor {

/// Measures texts as they will be drawn; the window's one asks the system.
class TextMeter {
public:
    virtual ~TextMeter() = default;

    /// Pixels that a text takes when its lines are wrapped at `mostWidth`.
    [[nodiscard]] virtual Extent Measure(const std::string& text, const MenuFont& font,
                                         int mostWidth) const = 0;
    /// Pixels from one line to the next.
    [[nodiscard]] virtual int LineHeight(const MenuFont& font) const = 0;

protected:
    TextMeter() = default;
    TextMeter(const TextMeter&) = default;
    TextMeter& operator=(const TextMeter&) = default;
};

} // namespace tavmoor
