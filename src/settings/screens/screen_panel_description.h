#pragma once

#include "core/document/field_access.h"
#include "services/fields/picture_field.h"

#include <array>
#include <cstdint>
#include <string>

namespace tavmoor {

/// A control's object name and its caption, or the caption of the label beside it.
struct NamedText {
    const char* control;
    const char16_t* text;
};

/// A scroll bar that spins a size, and the label that shows it.
struct ScreenDimension {
    NamedText bar;
    const char* label;
    int most; ///< pixels
};

/// The fields of one of the two screens.
struct ScreenFields {
    FieldOf<bool> shown;
    FieldOf<bool> clickThrough;
    FieldOf<std::string> text;
    FieldOf<std::string> font;
    FieldOf<std::string> fontSize;
    FieldOf<bool> bold;
    FieldOf<bool> italic;
    FieldOf<bool> underline;
    FieldOf<ColorValue> textColor;
    FieldOf<std::string> picture;
    FieldOf<std::int16_t> option;
    FieldOf<ColorValue> backColor;
    FieldOf<std::string> time;
    FieldOf<std::int16_t> height;
    FieldOf<std::int16_t> width;
    FieldOf<std::string> textPosition;
    FieldOf<std::string> picturePosition;
};

/// What differs between the two panels. Texts as the user reads them, but for mnemonics.
struct ScreenPanelDescription {
    const char* frame;
    const char16_t* heading;
    ScreenFields fields;

    NamedText show;
    NamedText click;
    NamedText text;
    const char* textColor; ///< the palette button
    const char* fontButton;
    const char* fontName;
    const char* fontSize;
    NamedText bold;
    NamedText italic;
    NamedText underline;
    PictureFieldDescription picture;
    std::array<NamedText, 3> options; ///< for the values 1 to 3
    NamedText color;
    const char* colorButton;
    const char16_t* colorTooltip;
    NamedText time;
    const char* timeUnit;
    NamedText dimensions;
    ScreenDimension height;
    ScreenDimension width;
    NamedText textPosition;
    NamedText picturePosition;
};

extern const ScreenPanelDescription SplashScreenPanel; ///< `Frame9`
extern const ScreenPanelDescription ExitScreenPanel;   ///< `Frame12`

} // namespace tavmoor
