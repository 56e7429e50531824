#include "looks/looks.h"

namespace tavmoor {

Look MarqueeLook() {
    Look look;
    look.size = {800, 500};
    look.screenSize = {640, 360};
    look.buttonPlace = ButtonPlace::BottomGrid;
    look.logoBelowTitle = true;
    look.centredCaptions = true;
    look.margin = 30;
    look.headerHeight = 100;
    look.logoPicture = 72;
    look.columnWidth = 170;
    look.mostColumns = 4;
    look.buttonHeight = 44;
    look.buttonGap = 10;
    look.buttonRadius = 7;
    look.captionPadding = 14;
    look.panelPadding = 8;
    look.textWidth = 560;

    look.fonts.title = {"Segoe UI Light", 31};
    look.fonts.logo = {"Segoe UI", 13};
    look.fonts.descriptionTitle = {"Segoe UI", 15, true};
    look.fonts.description = {"Segoe UI", 11};
    look.fonts.button = {"Segoe UI", 12};
    look.fonts.group = {"Segoe UI", 9};

    Palette& colors = look.colors;
    colors.back = 0xFF2A2A58;
    colors.backBottom = 0xFF12102A;
    colors.title = 0xFFFFFFFF;
    colors.logo = 0xFFFFE3C2;
    colors.descriptionTitle = 0xFFFFD9A0;
    colors.description = 0xFFFFFFFF;
    colors.group = 0xFFFFFFFF;
    colors.band = 0xB80C0A20;
    colors.focus = 0xFFFFFFFF;
    colors.thumb = 0x80FFFFFF;
    colors.buttons = {{{0x26FFFFFF, 0x66FFFFFF, 0xFFFFFFFF, 0},
                       {0xFFEE7A5C, 0xFFF6A68F, 0xFFFFFFFF, 0},
                       {0xFFC95A3D, 0xFFC95A3D, 0xFFFFFFFF, 0}}};
    return look;
}

} // namespace tavmoor
