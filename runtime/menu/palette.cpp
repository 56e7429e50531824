#include "menu/palette.h"

#include <algorithm>
#include <cmath>

namespace tavmoor {

namespace {

constexpr Argb Opaque = 0xFF000000;
constexpr Argb White = 0xFFFFFFFF;
constexpr Argb Ink = 0xFF10161C;
constexpr double Readable = 3.0;

// What a new project holds; a look with a taste of its own takes these for "not chosen".
constexpr std::uint32_t NewWindowColor = SystemColorBit | 5U;
constexpr std::uint32_t NewButtonText = SystemColorBit | 18U;
constexpr std::uint32_t NewButtonFace = SystemColorBit | 15U;
constexpr std::uint32_t NewDescriptionColor = 0x00FFFFFF;
constexpr std::uint32_t NewTextColor = 0;

/// Opacity of a button's face on a picture.
constexpr std::uint32_t OverPicture = 0xC8;

constexpr std::uint32_t Channel(Argb color, int shift) {
    return (color >> shift) & 0xFF;
}

double Linear(std::uint32_t channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(Argb color) {
    return 0.2126 * Linear(Channel(color, 16)) + 0.7152 * Linear(Channel(color, 8)) +
           0.0722 * Linear(Channel(color, 0));
}

Argb WithOpacity(Argb color, std::uint32_t opacity) {
    return (color & 0x00FFFFFF) | (opacity << 24);
}

/// Works the author's choices into a look's palette.
class PaletteMaker {
public:
    PaletteMaker(const MenuModel& model, const Look& look, const SystemColors& system, bool picture)
        : model_(model), look_(look), system_(system), picture_(picture), palette_(look.colors) {}

    Palette Make() {
        TakeBack();
        const Argb header = Blend(palette_.header, palette_.back);
        palette_.title = TextOn(header, model_.title.color, palette_.title);
        palette_.logo = TextOn(header, model_.logo.color, palette_.logo);
        TakePanel();
        const Argb panel = Blend(palette_.panel, palette_.back);
        palette_.descriptionTitle =
            TextOn(panel, model_.descriptionTitle.color, palette_.descriptionTitle);
        palette_.description = TextOn(panel, model_.description.color, palette_.description);
        palette_.group = ReadableOn(palette_.back, palette_.group);
        palette_.focus = ReadableOn(palette_.back, palette_.focus);
        TakeButtons();
        return palette_;
    }

private:
    [[nodiscard]] bool Chosen(std::uint32_t color, std::uint32_t ofNewProject) const {
        return !look_.hasOwnTaste || color != ofNewProject;
    }

    [[nodiscard]] Argb TextOn(Argb back, ColorValue color, Argb own) const {
        return Chosen(static_cast<std::uint32_t>(color), NewTextColor) ? SolidColor(color, system_)
                                                                       : ReadableOn(back, own);
    }

    void TakeBack() {
        if (!Chosen(static_cast<std::uint32_t>(model_.windowColor), NewWindowColor)) {
            return;
        }
        palette_.back = palette_.backBottom = SolidColor(model_.windowColor, system_);
        palette_.band = WithOpacity(palette_.back, Channel(palette_.band, 24));
        palette_.thumb = WithOpacity(ReadableOn(palette_.back, palette_.thumb | Opaque),
                                     Channel(palette_.thumb, 24));
    }

    void TakePanel() {
        if (!model_.descriptionColor) {
            palette_.panel = 0;
        } else if (Chosen(static_cast<std::uint32_t>(*model_.descriptionColor),
                          NewDescriptionColor)) {
            palette_.panel = SolidColor(*model_.descriptionColor, system_);
        }
    }

    void TakeButtons() {
        const auto& face = model_.buttonFaceColor;
        if (face && static_cast<std::uint32_t>(*face) != NewButtonFace) {
            TakeFace(SolidColor(*face, system_));
        } else if (picture_ && Channel(palette_.band, 24) == 0) {
            Argb& own = palette_.buttons.front().face;
            own = WithOpacity(Blend(own, palette_.back), std::max(Channel(own, 24), OverPicture));
        }
        const auto& text = model_.buttonTextColor;
        const bool textChosen = text && static_cast<std::uint32_t>(*text) != NewButtonText;
        for (ButtonColors& button : palette_.buttons) {
            button.text = textChosen ? SolidColor(*text, system_)
                                     : ReadableOn(Blend(button.face, palette_.back), button.text);
        }
        if (model_.buttonShadowColor) {
            palette_.buttonShadow = SolidColor(*model_.buttonShadowColor, system_);
        }
    }

    void TakeFace(Argb face) {
        const bool dark = Contrast(face, White) > Contrast(face, Ink);
        const Argb hover = Blend(WithOpacity(dark ? White : Ink, dark ? 0x2C : 0x20), face);
        const Argb pressed = Blend(WithOpacity(Ink, 0x40), face);
        const Argb border = Blend(WithOpacity(dark ? White : Ink, 0x40), face);
        const std::array<Argb, ButtonStates> faces{face, hover, pressed};
        for (std::size_t state = 0; state < ButtonStates; ++state) {
            palette_.buttons[state].face = faces[state];
            palette_.buttons[state].border = border;
        }
    }

    const MenuModel& model_;
    const Look& look_;
    const SystemColors& system_;
    bool picture_;
    Palette palette_;
};

} // namespace

Argb SolidColor(ColorValue color, const SystemColors& system) {
    auto bits = static_cast<std::uint32_t>(color);
    if ((bits & SystemColorBit) != 0) {
        bits = system(static_cast<int>(bits & 0xFF));
    }
    return Opaque | Channel(bits, 0) << 16 | Channel(bits, 8) << 8 | Channel(bits, 16);
}

Argb Blend(Argb top, Argb bottom) {
    const std::uint32_t share = Channel(top, 24);
    const auto mix = [&](int shift) {
        return (Channel(top, shift) * share + Channel(bottom, shift) * (255 - share) + 127) / 255;
    };
    return Opaque | mix(16) << 16 | mix(8) << 8 | mix(0);
}

double Contrast(Argb a, Argb b) {
    const double first = Luminance(a) + 0.05;
    const double second = Luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

Argb ReadableOn(Argb back, Argb wanted) {
    if (Contrast(wanted, back) >= Readable) {
        return wanted;
    }
    return Contrast(White, back) >= Contrast(Ink, back) ? White : Ink;
}

Palette MakePalette(const MenuModel& model, const Look& look, const SystemColors& system,
                    bool picture) {
    return PaletteMaker(model, look, system, picture).Make();
}

} // namespace tavmoor
