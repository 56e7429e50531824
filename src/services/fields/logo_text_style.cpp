#include "services/fields/logo_text_style.h"

#include "core/document/words.h"

namespace tavmoor {

std::string StyleWord(const FontSpec& font) {
    if (font.italic) {
        return std::string(words::Italic);
    }
    return std::string(font.bold ? words::Bold : std::string_view());
}

std::string EffectWords(const FontSpec& font) {
    std::string effects(font.strikeOut ? words::StrikeThru : std::string_view());
    if (font.underline) {
        effects.append(effects.empty() ? "" : ", ").append(words::Underline);
    }
    return effects;
}

void TakeStyleWords(FontSpec& font, std::string_view style, std::string_view effects) {
    font.bold = style.find(words::Bold) != std::string_view::npos;
    font.italic = style.find(words::Italic) != std::string_view::npos;
    font.underline = effects.ends_with(words::UnderlineEnd);
    font.strikeOut = effects.starts_with(words::StrikeThruStart);
}

} // namespace tavmoor
