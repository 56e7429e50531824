#pragma once

#include "core/document/project_document.h"

#include <QColor>

#include <optional>
#include <string>
#include <string_view>

namespace tavmoor {

/// The colour that a project's colour value stands for, always opaque. With the high bit set, the
/// low byte is the number of a system colour, 0 to 24; what a usual Windows desktop has for it is
/// shown, not this desktop's own colours, since the disc is looked at elsewhere. Unknown numbers
/// give black.
QColor ToQColor(ColorValue color);

/// The value 0x00BBGGRR of a colour; its opacity is dropped.
ColorValue ToColorValue(const QColor& color);

/// The colour that a stored decimal text says; nothing for "" (not set) or a text that is no whole
/// number of 32 bits.
std::optional<ColorValue> ParseColorText(std::string_view text);

/// The stored form of a colour: signed decimal.
std::string ColorText(ColorValue color);

} // namespace tavmoor
