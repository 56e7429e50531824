#include "window/menu_painter.h"

#include <algorithm>

namespace tavmoor {

namespace {

constexpr Argb OpacityMask = 0xFF000000;
constexpr int PanelRadius = 8;
constexpr int AccentWidth = 4;
constexpr int AccentInset = 7;
/// How far above the buttons the shade over a picture begins.
constexpr int BandRise = 150;

bool IsVisible(Argb color) {
    return (color & OpacityMask) != 0;
}

Gdiplus::Rect Rectangle(const Box& box) {
    return {box.x, box.y, box.width, box.height};
}

/// An outline with round corners; `inset` moves it inwards, so that a line lies inside the box.
void AddRounded(Gdiplus::GraphicsPath& path, const Box& box, int radius, float inset) {
    const float left = static_cast<float>(box.x) + inset;
    const float top = static_cast<float>(box.y) + inset;
    const float right = static_cast<float>(box.Right()) - inset;
    const float bottom = static_cast<float>(box.Bottom()) - inset;
    const float most = std::min(right - left, bottom - top);
    const float size = std::min(2.0F * static_cast<float>(radius), most);
    if (size <= 1.0F) {
        path.AddRectangle(Gdiplus::RectF(left, top, right - left, bottom - top));
        return;
    }
    path.AddArc(left, top, size, size, 180.0F, 90.0F);
    path.AddArc(right - size, top, size, size, 270.0F, 90.0F);
    path.AddArc(right - size, bottom - size, size, size, 0.0F, 90.0F);
    path.AddArc(left, bottom - size, size, size, 90.0F, 90.0F);
    path.CloseFigure();
}

} // namespace

MenuPainter::MenuPainter(HDC target, const LayoutRequest& request, const MenuLayout& layout,
                         const Palette& palette, const GdiFonts& fonts, PictureStore& pictures)
    : target_(target), graphics_(target), request_(request), layout_(layout), palette_(palette),
      fonts_(fonts), pictures_(pictures) {
    graphics_.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    graphics_.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
}

void MenuPainter::Paint(const MenuSelection& selection, int scroll) {
    PaintBack();
    PaintPicture();
    PaintHeader();
    PaintDescription(selection);
    PaintList(selection, scroll);
    PaintScrollBar(scroll);
}

void MenuPainter::PaintBack() {
    const Box all{0, 0, request_.client.width, request_.client.height};
    if (palette_.back == palette_.backBottom) {
        FillBox(all, palette_.back);
        return;
    }
    PaintFade(all, palette_.back, palette_.backBottom);
}

void MenuPainter::PaintPicture() {
    const Box& place = layout_.picture;
    const bool stretch = request_.look.picturePlace == PicturePlace::StretchToWindow;
    Gdiplus::Bitmap* picture =
        pictures_.Scaled(request_.model.backgroundPicture, {place.width, place.height},
                         stretch ? PictureFit::Stretch : PictureFit::Cover);
    if (picture == nullptr) {
        return;
    }
    if (request_.look.picturePlace != PicturePlace::Frame) {
        graphics_.DrawImage(picture, Rectangle(place));
        PaintBand();
        return;
    }
    Gdiplus::TextureBrush brush(picture, Gdiplus::WrapModeClamp);
    brush.TranslateTransform(static_cast<float>(place.x), static_cast<float>(place.y));
    Gdiplus::GraphicsPath path;
    AddRounded(path, place, Pixels(request_.look.pictureRadius), 0.0F);
    graphics_.FillPath(&brush, &path);
}

void MenuPainter::PaintBand() {
    if (!IsVisible(palette_.band)) {
        return;
    }
    const int start = layout_.list.y - Pixels(BandRise);
    const int full = layout_.list.y - Pixels(BandRise) / 3;
    PaintFade({0, start, request_.client.width, full - start}, palette_.band & ~OpacityMask,
              palette_.band);
    FillBox({0, full, request_.client.width, request_.client.height - full}, palette_.band);
}

void MenuPainter::PaintFade(const Box& box, Argb top, Argb bottom) {
    if (box.Empty()) {
        return;
    }
    // Two rows more than are painted: a gradient may begin with the colour of its other end.
    const Gdiplus::LinearGradientBrush brush(
        Gdiplus::Rect(box.x, box.y - 1, box.width, box.height + 2), top, bottom,
        Gdiplus::LinearGradientModeVertical);
    graphics_.FillRectangle(&brush, Rectangle(box));
}

void MenuPainter::PaintHeader() {
    const Box& header = layout_.header;
    if (header.Empty()) {
        return;
    }
    FillBox(header, palette_.header);
    const int margin = request_.look.margin;
    if (IsVisible(palette_.rule)) {
        const Box rule{Pixels(margin), header.Bottom() - Pixels(1),
                       header.width - 2 * Pixels(margin), Pixels(1)};
        FillBox(rule, palette_.rule);
    }
    const Box& logo = layout_.logoPicture;
    if (Gdiplus::Bitmap* picture = pictures_.Scaled(
            request_.model.logoPicture, {logo.width, logo.height}, PictureFit::Stretch)) {
        graphics_.DrawImage(picture, Rectangle(logo));
    }
    graphics_.Flush(Gdiplus::FlushIntentionSync);
    fonts_.Draw(target_, request_.model.title.text, request_.fonts.title, palette_.title,
                layout_.title, DT_LEFT);
    fonts_.Draw(target_, request_.model.logo.text, request_.fonts.logo, palette_.logo,
                layout_.logoText, request_.look.logoBelowTitle ? DT_LEFT : DT_RIGHT);
}

void MenuPainter::PaintDescription(const MenuSelection& selection) {
    if (!request_.model.HasDescriptions()) {
        return;
    }
    const Description told = request_.model.DescriptionOf(selection.Told());
    const DescriptionBoxes boxes = PlaceDescription(request_, layout_, told);
    if (IsVisible(palette_.panel) && !boxes.panel.Empty()) {
        FillRounded(boxes.panel, Pixels(PanelRadius), palette_.panel);
    }
    graphics_.Flush(Gdiplus::FlushIntentionSync);
    const UINT align = request_.look.centredDescription ? DT_CENTER : DT_LEFT;
    fonts_.Draw(target_, told.title, request_.fonts.descriptionTitle, palette_.descriptionTitle,
                boxes.title, align);
    fonts_.Draw(target_, told.text, request_.fonts.description, palette_.description, boxes.text,
                align);
}

void MenuPainter::PaintList(const MenuSelection& selection, int scroll) {
    // The focus frame stands a little outside its button.
    const int air = Pixels(4);
    const Box& list = layout_.list;
    const int saved = SaveDC(target_);
    const bool scrolls = layout_.MostScroll() > 0;
    if (scrolls) {
        IntersectClipRect(target_, list.x - air, list.y, list.Right() + air, list.Bottom());
        graphics_.SetClip(Gdiplus::Rect(list.x - air, list.y, list.width + 2 * air, list.height));
    }
    for (const GroupTitle& title : layout_.groups) {
        const Box box = title.box.Moved(0, -scroll);
        const bool whole = box.y >= list.y && box.Bottom() <= list.Bottom();
        if (!layout_.IsFixed(title.group) && whole) {
            PaintGroup(title, box);
        }
    }
    for (std::size_t button = 0; button < layout_.firstFixed; ++button) {
        const Box box = layout_.ButtonBox(button, scroll);
        if (!scrolls || (box.Bottom() > list.y && box.y < list.Bottom())) {
            PaintButton(button, box, selection);
        }
    }
    graphics_.ResetClip();
    RestoreDC(target_, saved);
    for (const GroupTitle& title : layout_.groups) {
        if (layout_.IsFixed(title.group)) {
            PaintGroup(title, title.box);
        }
    }
    for (std::size_t button = layout_.firstFixed; button < layout_.buttons.size(); ++button) {
        PaintButton(button, layout_.buttons[button], selection);
    }
}

void MenuPainter::PaintGroup(const GroupTitle& title, const Box& box) {
    graphics_.Flush(Gdiplus::FlushIntentionSync);
    const std::string& text = request_.model.groupTitles[static_cast<std::size_t>(title.group)];
    if (!layout_.picture.Empty()) {
        fonts_.Draw(target_, text, request_.fonts.group, palette_.back,
                    box.Moved(Pixels(1), Pixels(1)), DT_LEFT);
    }
    fonts_.Draw(target_, text, request_.fonts.group, palette_.group, box, DT_LEFT);
}

void MenuPainter::PaintButton(std::size_t button, const Box& box, const MenuSelection& selection) {
    const auto state = static_cast<std::size_t>(selection.StateOf(button));
    const ButtonColors& colors = palette_.buttons[state];
    const int radius = Pixels(request_.look.buttonRadius);
    FillRounded(box, radius, colors.face, colors.border);
    if (IsVisible(colors.accent)) {
        const int inset = Pixels(AccentInset);
        const Box bar{box.x, box.y + inset, Pixels(AccentWidth), box.height - 2 * inset};
        FillRounded(bar, bar.width / 2, colors.accent);
    }
    if (selection.Framed() == button) {
        const int width = Pixels(2);
        FrameRounded(box.Inset(-2 * width + 1, -2 * width + 1), radius + width, palette_.focus,
                     width);
    }
    graphics_.Flush(Gdiplus::FlushIntentionSync);
    PaintCaption(request_.model.commands[button].caption, box, colors.text);
}

void MenuPainter::PaintCaption(const std::string& caption, const Box& box, Argb color) {
    const MenuFont& font = request_.fonts.button;
    const Box inner = box.Inset(Pixels(request_.look.captionPadding), Pixels(2));
    const int line = fonts_.LineHeight(font);
    const int wanted = fonts_.Measure(caption, font, inner.width).height;
    const int lines = std::max(inner.height / line, 1);
    const int height = std::min(wanted, lines * line);
    const Box place{inner.x, inner.y + (inner.height - height) / 2, inner.width, height};
    const UINT align = request_.look.centredCaptions ? DT_CENTER : DT_LEFT;
    if (IsVisible(palette_.buttonShadow)) {
        fonts_.Draw(target_, caption, font, palette_.buttonShadow,
                    place.Moved(Pixels(1), Pixels(1)), align);
    }
    fonts_.Draw(target_, caption, font, color, place, align);
}

void MenuPainter::PaintScrollBar(int scroll) {
    const Box thumb = layout_.ScrollThumb(scroll);
    if (!thumb.Empty()) {
        FillRounded(thumb, thumb.width / 2, palette_.thumb);
    }
}

void MenuPainter::FillBox(const Box& box, Argb color) {
    const Gdiplus::SolidBrush brush(color);
    graphics_.FillRectangle(&brush, Rectangle(box));
}

void MenuPainter::FillRounded(const Box& box, int radius, Argb face, Argb border) {
    if (box.Empty()) {
        return;
    }
    if (IsVisible(face)) {
        Gdiplus::GraphicsPath path;
        AddRounded(path, box, radius, 0.0F);
        const Gdiplus::SolidBrush brush(face);
        graphics_.FillPath(&brush, &path);
    }
    if (IsVisible(border)) {
        FrameRounded(box, radius, border, Pixels(1));
    }
}

void MenuPainter::FrameRounded(const Box& box, int radius, Argb color, int width) {
    Gdiplus::GraphicsPath path;
    AddRounded(path, box, radius, static_cast<float>(width) / 2.0F);
    const Gdiplus::Pen pen(color, static_cast<float>(width));
    graphics_.DrawPath(&pen, &path);
}

} // namespace tavmoor
