#pragma once

#include <charconv>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace tavmoor {

/// The number that a stored text says: decimal with an optional sign, fraction ('.') and exponent,
/// or "&H" and hexadecimal digits; blanks around it are allowed. Nothing for "" or any other text:
/// the conversion failed, and the caller leaves its field as it was.
std::optional<double> ParseNumber(std::string_view text);

/// Rounds to a whole number, halves to the even one.
double RoundHalfToEven(double number);

/// ParseNumber, rounded to a whole number; nothing when it lies outside the type.
template <typename Integer>
std::optional<Integer> ParseInteger(std::string_view text) {
    Integer plain{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, plain);
    if (error == std::errc() && stop == end) {
        return plain; // as nearly every stored number is
    }
    const auto number = ParseNumber(text);
    if (!number) {
        return std::nullopt;
    }
    const double rounded = RoundHalfToEven(*number);
    const bool fits = rounded >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
                      rounded <= static_cast<double>(std::numeric_limits<Integer>::max());
    return fits ? std::optional(static_cast<Integer>(rounded)) : std::nullopt;
}

/// A number with up to 15 significant digits, without a fraction where it has none.
std::string FormatNumber(double number);

/// Appends a whole number in decimal.
void AppendInteger(std::string& text, std::int64_t number);

} // namespace tavmoor
