#include "core/text/value_encoding.h"

#include "core/text/number_text.h"

#include <array>

namespace tavmoor {

namespace {

struct Token {
    char character;
    std::string_view text;
};

// The order matters: it is the one in which the replacements follow one another.
constexpr std::array<Token, 3> Tokens{{{'\n', "Chr$(10)"}, {'\r', "Chr$(13)"}, {'&', "Chr$(38)"}}};

void ReplaceAll(std::string& text, std::string_view from, char to) {
    std::size_t at = text.find(from);
    while (at != std::string::npos) {
        text.replace(at, from.size(), 1, to);
        at = text.find(from, at + 1);
    }
}

} // namespace

std::string EncodeText(std::string_view text) {
    std::string encoded;
    encoded.reserve(text.size());
    // One pass is enough here: no token holds a character that is replaced.
    for (const char character : text) {
        bool replaced = false;
        for (const Token& token : Tokens) {
            if (character == token.character) {
                encoded += token.text;
                replaced = true;
            }
        }
        if (!replaced) {
            encoded += character;
        }
    }
    return encoded;
}

std::string DecodeText(std::string_view text) {
    std::string decoded(text);
    for (const Token& token : Tokens) {
        ReplaceAll(decoded, token.text, token.character);
    }
    return decoded;
}

std::string RoundSize(std::string_view value) {
    if (value.empty()) {
        return "10";
    }
    const auto number = ParseNumber(value);
    return number ? FormatNumber(RoundHalfToEven(*number)) : std::string(value);
}

std::string_view MonthName(int month) {
    static constexpr std::array<std::string_view, 12> names{
        "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return month >= 1 && month <= 12 ? names[static_cast<std::size_t>(month - 1)]
                                     : std::string_view();
}

} // namespace tavmoor
