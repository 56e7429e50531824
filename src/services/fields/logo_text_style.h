#pragma once

#include "services/values/font_spec.h"

#include <string>
#include <string_view>

namespace tavmoor {

// The style and the effects of the logo text's font, which the project holds as words (`Stil` and
// `Efekti`) and not as flags.

/// "", words::Bold or words::Italic; there is no word for both, and italic wins.
std::string StyleWord(const FontSpec& font);

/// "", one of the words::StrikeThru and words::Underline, or both with ", " between them.
std::string EffectWords(const FontSpec& font);

/// Sets the flags of a font from the two fields; other words set none.
void TakeStyleWords(FontSpec& font, std::string_view style, std::string_view effects);

} // namespace tavmoor
