#include "services/fields/logo_text_style.h"

namespace tavmoor {

std::string StyleWord(const FontSpec& font) {
    if (font.italic) {
        return "Italic";
    }
    return font.bold ? "Bold" : "";
}

std::string EffectWords(const FontSpec& font) {
    std::string words = font.strikeOut ? "StrikeThru" : "";
    if (font.underline) {
        words += words.empty() ? "Underline" : ", Underline";
    }
    return words;
}

void TakeStyleWords(FontSpec& font, std::string_view style, std::string_view effects) {
    font.bold = style.find("Bold") != std::string_view::npos;
    font.italic = style.find("Italic") != std::string_view::npos;
    font.underline = effects.ends_with("line");
    font.strikeOut = effects.starts_with("Strike");
}

} // namespace tavmoor
