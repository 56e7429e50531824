#pragma once

#include "core/document/project_document.h"
#include "services/fields/picture_field.h"

#include <array>
#include <string_view>

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
    std::string_view key;
    int most; ///< pixels
};

/// What differs between the two panels. Texts as the user reads them, but for mnemonics.
struct ScreenPanelDescription {
    const char* frame;
    const char16_t* heading;
    ScreenSpec ProjectDocument::*screen;
    std::string_view section;
    std::string_view clickKey;
    std::string_view textKey;

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
