#pragma once

#include "menu/menu_layout.h"
#include "menu/menu_navigation.h"
#include "window/gdi_fonts.h"
#include "window/picture_store.h"

#include <windows.h>

namespace tavmoor {

/// Paints the menu window from its layout.
class MenuPainter {
public:
    /// All arguments outlive the painter.
    MenuPainter(HDC target, const LayoutRequest& request, const MenuLayout& layout,
                const Palette& palette, const GdiFonts& fonts, PictureStore& pictures);

    void Paint(const MenuSelection& selection, int scroll);

private:
    void PaintBack();
    void PaintPicture();
    void PaintBand();
    void PaintHeader();
    void PaintDescription(const MenuSelection& selection);
    void PaintList(const MenuSelection& selection, int scroll);
    void PaintGroup(const GroupTitle& title, const Box& box);
    void PaintFade(const Box& box, Argb top, Argb bottom);
    void PaintButton(std::size_t button, const Box& box, const MenuSelection& selection);
    void PaintCaption(const std::string& caption, const Box& box, Argb color);
    void PaintScrollBar(int scroll);
    void FillBox(const Box& box, Argb color);
    void FillRounded(const Box& box, int radius, Argb face, Argb border = 0);
    void FrameRounded(const Box& box, int radius, Argb color, int width);
    [[nodiscard]] int Pixels(int length) const { return ToPixels(length, request_.dpi); }

    HDC target_;
    Gdiplus::Graphics graphics_;
    const LayoutRequest& request_;
    const MenuLayout& layout_;
    const Palette& palette_;
    const GdiFonts& fonts_;
    PictureStore& pictures_;
};

} // namespace tavmoor
