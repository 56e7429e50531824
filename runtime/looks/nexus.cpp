#include "looks/looks.h"

namespace tavmoor {

Look NexusLook() {
    Look look;
    look.size = {800, 500};
    look.groupTitles = true;
    look.buttonPlace = ButtonPlace::LeftColumn;
    look.panelFillsArea = true;
    look.margin = 32;
    look.headerHeight = 84;
    look.logoPicture = 52;
    look.columnWidth = 240;
    look.buttonHeight = 34;
    look.buttonGap = 7;
    look.captionPadding = 20;
    look.panelPadding = 26;
    look.textWidth = 480;

    look.fonts.title = {"Segoe UI Light", 26};
    look.fonts.logo = {"Segoe UI", 11};
    look.fonts.descriptionTitle = {"Segoe UI", 18, true};
    look.fonts.description = {"Segoe UI", 12};
    look.fonts.button = {"Segoe UI", 11};
    look.fonts.group = {"Segoe UI", 9};

    Palette& colors = look.colors;
    colors.back = 0xFF0E1F30;
    colors.backBottom = 0xFF12344A;
    colors.header = 0x0DFFFFFF;
    colors.rule = 0x805CC8C6;
    colors.title = 0xFFFFFFFF;
    colors.logo = 0xFF9FC3D1;
    colors.descriptionTitle = 0xFFF4B355;
    colors.description = 0xFFDCE9EF;
    colors.panel = 0x8C061321;
    colors.group = 0xFF7FA9B8;
    colors.focus = 0xFFF4B355;
    colors.thumb = 0x70FFFFFF;
    colors.buttons = {{{0x16FFFFFF, 0, 0xFFC9DAE4, 0xFF3E8E9E},
                       {0xFF1C7C86, 0, 0xFFFFFFFF, 0xFFF4B355},
                       {0xFF155F68, 0, 0xFFFFFFFF, 0xFFF4B355}}};
    return look;
}

} // namespace tavmoor
