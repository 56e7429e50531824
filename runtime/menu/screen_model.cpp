#include "menu/screen_model.h"

#include "core/number_text.h"
#include "core/text_case.h"
#include "core/value_encoding.h"
#include "menu/stored_values.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tavmoor {

namespace {

constexpr std::int16_t PictureOnly = 2;
constexpr std::int16_t TextOnly = 3;

std::optional<ScreenPlace> PlaceOf(std::string_view name) {
    constexpr std::array<std::pair<std::string_view, ScreenPlace>, 7> names{{
        {"Top left", ScreenPlace::TopLeft},
        {"Top right", ScreenPlace::TopRight},
        {"Top center", ScreenPlace::TopCenter},
        {"Botton left", ScreenPlace::BottomLeft},
        {"Bottom right", ScreenPlace::BottomRight},
        {"Bottom center", ScreenPlace::BottomCenter},
        {"Centered on window", ScreenPlace::Center},
    }};
    name = TrimBlanks(name);
    if (name.ends_with('!')) {
        name.remove_suffix(1);
    }
    for (const auto& [text, place] : names) {
        if (EqualWithoutCase(text, name)) {
            return place;
        }
    }
    return std::nullopt;
}

} // namespace

ScreenModel MakeScreenModel(const ScreenSpec& spec) {
    ScreenModel model;
    model.shown = spec.Prikazi;
    model.clickCloses = spec.ClickThrough;
    model.seconds = ScreenSeconds(spec.Vreme);
    model.size = {std::max<int>(spec.Sirina, 0), std::max<int>(spec.Visina, 0)};
    model.color = spec.Bojaprozora;
    if (spec.Opcija != TextOnly) {
        model.picture = spec.Slika;
    }
    if (spec.Opcija != PictureOnly) {
        model.text.text = Utf8Text(spec.Tekst);
    }
    model.text.font =
        StoredFont(spec.Font, spec.Fontvelicina, spec.Bold, spec.Italic, spec.Underline);
    model.text.color = spec.Bojateksta;
    model.picturePlace = PlaceOf(spec.Polozajslike);
    model.textPlace = PlaceOf(spec.Polozajteksta).value_or(ScreenPlace::Center);
    return model;
}

int ScreenSeconds(std::string_view text) {
    constexpr int usual = 5;
    constexpr int most = 60;
    const auto seconds = ParseNumber(text);
    return seconds && *seconds >= 1 && *seconds <= most ? static_cast<int>(*seconds) : usual;
}

} // namespace tavmoor
