#pragma once

#include "menu/geometry.h"
#include "menu/menu_model.h"

#include <array>
#include <cstdint>

namespace tavmoor {

/// A colour with its opacity, 0xAARRGGBB.
using Argb = std::uint32_t;

struct ButtonColors {
    Argb face = 0;
    Argb border = 0;
    Argb text = 0;
    Argb accent = 0; ///< the bar at the left side of a button; fully transparent for none
};

enum class ButtonState : std::uint8_t { Normal, Hover, Pressed };
inline constexpr std::size_t ButtonStates = 3;

struct Palette {
    Argb back = 0;
    Argb backBottom = 0; ///< the back colour runs from `back` at the top to this at the bottom
    Argb header = 0;     ///< laid over the header
    Argb rule = 0;       ///< the line below the header
    Argb title = 0;
    Argb logo = 0;
    Argb descriptionTitle = 0;
    Argb description = 0;
    Argb panel = 0; ///< behind the description
    Argb group = 0;
    Argb band = 0; ///< over the lower part of a picture that fills the window
    Argb focus = 0;
    Argb thumb = 0;        ///< the scroll bar's
    Argb buttonShadow = 0; ///< behind the captions; fully transparent for none
    std::array<ButtonColors, ButtonStates> buttons;
};

struct MenuFonts {
    MenuFont title;
    MenuFont logo;
    MenuFont descriptionTitle;
    MenuFont description;
    MenuFont button;
    MenuFont group;
};

enum class ButtonPlace : std::uint8_t {
    LeftColumn,  ///< one column, the description to its right
    RightColumn, ///< one column, picture and description to its left
    BottomGrid,  ///< rows along the bottom, the description above them
    Centre,      ///< as many columns as it takes, the description below them
};

enum class PicturePlace : std::uint8_t { CoverWindow, StretchToWindow, Frame };

/// What makes one template's menu look as it does: data alone. Lengths are pixels at 96 dpi.
struct Look {
    Extent size;                 ///< client size of the window where the project gives none
    Extent screenSize{480, 300}; ///< of a splash or exit screen where the project gives none
    bool sizeOfPicture = true;   ///< a background picture gives the client size instead
    DesignedIn designedIn = DesignedIn::Settings;
    /// Colours and fonts that a new project has count as not chosen, and the look's own stand.
    bool hasOwnTaste = true;
    bool groupTitles = false;

    ButtonPlace buttonPlace = ButtonPlace::LeftColumn;
    PicturePlace picturePlace = PicturePlace::CoverWindow;
    bool centredHeader = false;
    bool logoBelowTitle = false; ///< the logo text; otherwise at the right end of the header
    bool centredCaptions = false;
    bool centredDescription = false;
    bool panelFillsArea = false; ///< otherwise a panel is as large as what it holds

    int margin = 32;
    int headerHeight = 80; ///< at least
    int logoPicture = 48;  ///< most width and height
    int columnWidth = 238; ///< of buttons in a column; of a grid's cells at least
    int mostColumns = 1;
    int buttonHeight = 38; ///< at least
    int buttonGap = 9;
    int buttonRadius = 6;
    int captionPadding = 18;
    int panelPadding = 0;
    int pictureRadius = 0;
    int textWidth = 0; ///< most width of a description; 0 for no limit

    MenuFonts fonts;
    Palette colors;
};

/// A font that the author chose, or the look's own in its place.
MenuFont ChooseFont(const MenuFont& chosen, const MenuFont& own);

/// The fonts to draw with: the author's, or the look's own where none was chosen.
MenuFonts ChooseFonts(const MenuModel& model, const Look& look);

/// The window size to ask for, pixels at 96 dpi.
struct WantedSize {
    Extent size;
    bool outer = false;     ///< frame and title bar included
    bool keepRatio = false; ///< shrink both sides alike where it is too large
};

/// @param picture natural size of the background picture; empty for none
WantedSize ChooseSize(const MenuModel& model, const Look& look, Extent picture);

} // namespace tavmoor
