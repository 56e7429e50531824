#include "services/values/color_value.h"

#include "core/text/number_text.h"

#include <array>

namespace tavmoor {

namespace {

/// 0xRRGGBB by number of the system colour.
constexpr std::array<QRgb, 25> SystemColors{
    0xC8C8C8, // scroll bar
    0x000000, // desktop
    0x99B4D1, // active caption
    0xBFCDDB, // inactive caption
    0xF0F0F0, // menu
    0xFFFFFF, // window
    0x646464, // window frame
    0x000000, // menu text
    0x000000, // window text
    0x000000, // caption text
    0xB4B4B4, // active border
    0xF4F7FC, // inactive border
    0xABABAB, // application workspace
    0x0078D7, // highlight
    0xFFFFFF, // highlighted text
    0xF0F0F0, // button face
    0xA0A0A0, // button shadow
    0x6D6D6D, // disabled text
    0x000000, // button text
    0x000000, // inactive caption text
    0xFFFFFF, // button highlight
    0x696969, // dark shadow of a button
    0xE3E3E3, // light edge of a button
    0x000000, // tooltip text
    0xFFFFE1, // tooltip
};

} // namespace

QColor ToQColor(ColorValue color) {
    const auto bits = static_cast<std::uint32_t>(color);
    if ((bits & SystemColorBit) != 0) {
        const std::size_t number = bits & 0xFF;
        return {number < SystemColors.size() ? SystemColors[number] : QRgb{0}};
    }
    return {static_cast<int>(bits & 0xFF), static_cast<int>((bits >> 8) & 0xFF),
            static_cast<int>((bits >> 16) & 0xFF)};
}

ColorValue ToColorValue(const QColor& color) {
    return color.blue() << 16 | color.green() << 8 | color.red();
}

std::optional<ColorValue> ParseColorText(std::string_view text) {
    return ParseInteger<ColorValue>(text);
}

std::string ColorText(ColorValue color) {
    return std::to_string(color);
}

} // namespace tavmoor
