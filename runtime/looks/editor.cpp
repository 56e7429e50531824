#include "looks/looks.h"

namespace tavmoor {

Look EditorLook() {
    Look look;
    look.size = {640, 480};
    look.designedIn = DesignedIn::Canvas;
    look.hasOwnTaste = false;
    look.buttonPlace = ButtonPlace::Centre;
    look.picturePlace = PicturePlace::StretchToWindow;
    look.centredHeader = true;
    look.logoBelowTitle = true;
    look.centredCaptions = true;
    look.centredDescription = true;
    look.margin = 28;
    look.headerHeight = 92;
    look.logoPicture = 72;
    look.columnWidth = 240;
    look.mostColumns = 4;
    look.buttonHeight = 38;
    look.buttonGap = 10;
    look.buttonRadius = 5;
    look.captionPadding = 14;
    look.panelPadding = 10;
    look.textWidth = 520;

    look.fonts.title = {"Segoe UI", 24};
    look.fonts.logo = {"Segoe UI", 12};
    look.fonts.descriptionTitle = {"Segoe UI", 13, true};
    look.fonts.description = {"Segoe UI", 10};
    look.fonts.button = {"Segoe UI", 10};
    look.fonts.group = {"Segoe UI", 9};

    Palette& colors = look.colors;
    colors.back = colors.backBottom = 0xFFFFFFFF;
    colors.group = 0xFF52657A;
    colors.focus = 0xFF12304A;
    colors.thumb = 0x80808080;
    colors.buttons = {{{0x24808080, 0x80808080, 0xFF12304A, 0},
                       {0xFF1C5D7F, 0xFF1C5D7F, 0xFFFFFFFF, 0},
                       {0xFF12304A, 0xFF12304A, 0xFFFFFFFF, 0}}};
    return look;
}

} // namespace tavmoor
