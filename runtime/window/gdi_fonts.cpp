#include "window/gdi_fonts.h"

#include "window/wide_text.h"

#include <algorithm>

namespace tavmoor {

namespace {

constexpr UINT WrappedText = DT_WORDBREAK | DT_EDITCONTROL | DT_NOPREFIX;
constexpr int PointsPerInch = 72;
/// Slanted letters reach over the right end of their line by this part of its height.
constexpr int SlantPart = 5;

HFONT MakeFont(const MenuFont& font, int dpi) {
    LOGFONTW face{};
    face.lfHeight = -std::max(MulDiv(font.points, dpi, PointsPerInch), 1);
    face.lfWeight = font.bold ? FW_BOLD : FW_NORMAL;
    face.lfItalic = font.italic ? TRUE : FALSE;
    face.lfUnderline = font.underline ? TRUE : FALSE;
    face.lfStrikeOut = font.strikeOut ? TRUE : FALSE;
    face.lfCharSet = DEFAULT_CHARSET;
    face.lfQuality = CLEARTYPE_QUALITY;
    const std::wstring name = Wide(font.face).substr(0, LF_FACESIZE - 1);
    std::copy(name.begin(), name.end(), face.lfFaceName);
    return CreateFontIndirectW(&face);
}

COLORREF ColorRef(Argb color) {
    return RGB((color >> 16U) & 0xFFU, (color >> 8U) & 0xFFU, color & 0xFFU);
}

} // namespace

GdiFonts::GdiFonts(int dpi) : dpi_(dpi), measuring_(CreateCompatibleDC(nullptr)) {}

GdiFonts::~GdiFonts() {
    DeleteDC(measuring_);
    for (const Made& made : made_) {
        DeleteObject(made.handle);
    }
}

HFONT GdiFonts::Handle(const MenuFont& font) const {
    for (const Made& made : made_) {
        if (made.font == font) {
            return made.handle;
        }
    }
    return made_.emplace_back(font, MakeFont(font, dpi_)).handle;
}

Extent GdiFonts::Measure(const std::string& text, const MenuFont& font, int mostWidth) const {
    const std::wstring wide = Wide(text);
    const HGDIOBJ before = SelectObject(measuring_, Handle(font));
    constexpr LONG endless = 0x7FFF;
    RECT box{0, 0, std::max(mostWidth, 1), endless};
    DrawTextW(measuring_, wide.c_str(), static_cast<int>(wide.size()), &box,
              WrappedText | DT_CALCRECT);
    SelectObject(measuring_, before);
    return {static_cast<int>(box.right), static_cast<int>(box.bottom)};
}

int GdiFonts::LineHeight(const MenuFont& font) const {
    const HGDIOBJ before = SelectObject(measuring_, Handle(font));
    TEXTMETRICW metrics{};
    GetTextMetricsW(measuring_, &metrics);
    SelectObject(measuring_, before);
    return static_cast<int>(metrics.tmHeight);
}

void GdiFonts::Draw(HDC target, const std::string& text, const MenuFont& font, Argb color,
                    const Box& box, UINT align) const {
    if (text.empty() || box.Empty()) {
        return;
    }
    const std::wstring wide = Wide(text);
    const int slant = font.italic && align == DT_LEFT ? LineHeight(font) / SlantPart : 0;
    RECT place{box.x, box.y, box.Right() + slant, box.Bottom()};
    const HGDIOBJ before = SelectObject(target, Handle(font));
    SetBkMode(target, TRANSPARENT);
    SetTextColor(target, ColorRef(color));
    DrawTextW(target, wide.c_str(), static_cast<int>(wide.size()), &place,
              WrappedText | DT_END_ELLIPSIS | align);
    SelectObject(target, before);
}

} // namespace tavmoor
