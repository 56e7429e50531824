#include "looks/looks.h"

namespace tavmoor {

Look HarborLook() {
    Look look;
    look.size = {800, 500};
    look.sizeOfPicture = false;
    look.buttonPlace = ButtonPlace::RightColumn;
    look.picturePlace = PicturePlace::Frame;
    look.margin = 32;
    look.headerHeight = 96;
    look.logoPicture = 64;
    look.columnWidth = 232;
    look.buttonHeight = 39;
    look.buttonGap = 9;
    look.buttonRadius = 8;
    look.captionPadding = 20;
    look.pictureRadius = 7;
    look.textWidth = 460;

    look.fonts.title = {"Segoe UI Light", 26};
    look.fonts.logo = {"Segoe UI", 11};
    look.fonts.descriptionTitle = {"Segoe UI", 16, true};
    look.fonts.description = {"Segoe UI", 11};
    look.fonts.button = {"Segoe UI", 11};
    look.fonts.group = {"Segoe UI", 9};

    Palette& colors = look.colors;
    colors.back = colors.backBottom = 0xFFF7FAF9;
    colors.rule = 0xFFC9D8DA;
    colors.title = 0xFF12304A;
    colors.logo = 0xFF52657A;
    colors.descriptionTitle = 0xFF1A7678;
    colors.description = 0xFF52657A;
    colors.group = 0xFF52657A;
    colors.focus = 0xFF12304A;
    colors.thumb = 0x6052657A;
    colors.buttons = {{{0xFFFFFFFF, 0xFFC9D8DA, 0xFF12304A, 0},
                       {0xFF1F8A8C, 0xFF1F8A8C, 0xFFFFFFFF, 0},
                       {0xFF176C6E, 0xFF176C6E, 0xFFFFFFFF, 0}}};
    return look;
}

} // namespace tavmoor
