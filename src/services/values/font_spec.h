#pragma once

#include <QFont>

#include <string>
#include <string_view>

namespace tavmoor {

/// A font as a project holds it, field by field.
struct FontSpec {
    std::string name; ///< "" is the program's own font
    std::string size; ///< points, as text
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
};

/// The size in whole points that a field's text stands for, rounded as it is stored. A text that
/// is no number, or one outside 1 to 1638, gives 10, which is also what "" is stored as.
int FontPoints(std::string_view size);

/// The font with which a window shows a field.
QFont ToQFont(const FontSpec& wanted);

} // namespace tavmoor
