#include "menu/look.h"

#include <algorithm>

namespace tavmoor {

namespace {

/// What a new project holds as button font; nobody chose it.
constexpr const char* NewButtonFace = "Arial";
constexpr int NewButtonPoints = 9;

constexpr Extent SmallestWindow{200, 150};
/// A picture smaller than this share of the look's size is no measure for the window.
constexpr int SmallestPictureShare = 2;

Extent WithDefaults(Extent given, Extent fallback) {
    return {std::max(given.width > 0 ? given.width : fallback.width, SmallestWindow.width),
            std::max(given.height > 0 ? given.height : fallback.height, SmallestWindow.height)};
}

} // namespace

MenuFont ChooseFont(const MenuFont& chosen, const MenuFont& own) {
    MenuFont font = chosen;
    if (chosen.face.empty()) {
        font.face = own.face;
        font.points = own.points;
        font.bold = chosen.bold || own.bold;
        font.italic = chosen.italic || own.italic;
    } else if (chosen.points <= 0) {
        font.points = own.points;
    }
    return font;
}

MenuFonts ChooseFonts(const MenuModel& model, const Look& look) {
    MenuFont button = model.buttonFont;
    if (look.hasOwnTaste && button.face == NewButtonFace && button.points == NewButtonPoints) {
        button = {};
    }
    return {ChooseFont(model.title.font, look.fonts.title),
            ChooseFont(model.logo.font, look.fonts.logo),
            ChooseFont(model.descriptionTitle.font, look.fonts.descriptionTitle),
            ChooseFont(model.description.font, look.fonts.description),
            ChooseFont(button, look.fonts.button),
            look.fonts.group};
}

WantedSize ChooseSize(const MenuModel& model, const Look& look, Extent picture) {
    if (model.windowSize.width > 0 || model.windowSize.height > 0) {
        return {WithDefaults(model.windowSize, look.size), true, false};
    }
    const bool measure = look.sizeOfPicture &&
                         picture.width * SmallestPictureShare >= look.size.width &&
                         picture.height * SmallestPictureShare >= look.size.height;
    return measure ? WantedSize{picture, false, true} : WantedSize{look.size, false, false};
}

} // namespace tavmoor
