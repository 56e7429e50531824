#include "menu/screen_model.h"

#include "core/text/blanks.h"
#include "core/text/number_text.h"
#include "core/text/text_case.h"
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
        {words::TopLeft, ScreenPlace::TopLeft},
        {words::TopRight, ScreenPlace::TopRight},
        {words::TopCenter, ScreenPlace::TopCenter},
        {words::BottomLeft, ScreenPlace::BottomLeft},
        {words::BottomRight, ScreenPlace::BottomRight},
        {words::BottomCenter, ScreenPlace::BottomCenter},
        {words::CenteredOnWindow, ScreenPlace::Center},
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

ScreenModel MakeScreenModel(const ScreenSpec& screen) {
    ScreenModel model;
    model.shown = screen.Prikazi;
    model.clickCloses = screen.ClickThrough;
    model.seconds = ScreenSeconds(screen.Vreme);
    model.size = {std::max<int>(screen.Sirina, 0), std::max<int>(screen.Visina, 0)};
    model.color = screen.Bojaprozora;
    if (screen.Opcija != TextOnly) {
        model.picture = screen.Slika;
    }
    if (screen.Opcija != PictureOnly) {
        model.text.text = Utf8Text(screen.Tekst);
    }
    model.text.font =
        StoredFont(screen.Font, screen.Fontvelicina, screen.Bold, screen.Italic, screen.Underline);
    model.text.color = screen.Bojateksta;
    model.picturePlace = PlaceOf(screen.Polozajslike);
    model.textPlace = PlaceOf(screen.Polozajteksta).value_or(ScreenPlace::Center);
    return model;
}

int ScreenSeconds(std::string_view text) {
    const auto seconds = ParseNumber(text);
    return seconds && *seconds >= 1 && *seconds <= MostScreenSeconds ? static_cast<int>(*seconds)
                                                                     : UsualScreenSeconds;
}

} // namespace tavmoor
