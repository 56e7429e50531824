#include "menu/stored_values.h"

#include "core/text/blanks.h"
#include "core/text/code_page.h"
#include "core/text/number_text.h"
#include "core/text/text_case.h"

#include <algorithm>

namespace tavmoor {

namespace {

constexpr int LargestPoints = 400;

int Points(std::string_view size) {
    return std::clamp<int>(ParseInteger<std::int16_t>(size).value_or(0), 0, LargestPoints);
}

} // namespace

std::string Utf8Text(std::string_view bytes) {
    std::string lines;
    lines.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\r') {
            lines += bytes[i];
        } else if (i + 1 == bytes.size() || bytes[i + 1] != '\n') {
            lines += '\n';
        }
    }
    return SystemCodePage().ToUtf8(lines);
}

MenuFont StoredFont(std::string_view face, std::string_view size, bool bold, bool italic,
                    bool underline) {
    return {Utf8Text(TrimBlanks(face)), Points(size), bold, italic, underline, false};
}

bool SaysYes(std::string_view text) {
    text = TrimBlanks(text);
    const auto number = ParseNumber(text);
    return number ? *number != 0.0
                  : EqualWithoutCase(text, "True") || EqualWithoutCase(text, "Da") ||
                        EqualWithoutCase(text, "Yes");
}

} // namespace tavmoor
