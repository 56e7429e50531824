#include "core/text/number_text.h"

#include "core/text/blanks.h"
#include "core/text/text_case.h"

#include <array>
#include <charconv>
#include <cmath>

namespace tavmoor {

namespace {

/// What lies above is rounded out of range by the 15 digits that numbers are written with.
constexpr double LargestNumber = 1.79769313486231e308;

std::optional<double> ParseHexadecimal(std::string_view digits) {
    std::uint32_t bits = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, bits, 16);
    if (digits.empty() || error != std::errc() || stop != end) {
        return std::nullopt;
    }
    // Up to four digits say a 16-bit number with its sign, more say a 32-bit one.
    return digits.size() <= 4 ? static_cast<std::int16_t>(bits) : static_cast<std::int32_t>(bits);
}

bool IsPlainDecimal(std::string_view text) {
    return text.find_first_not_of("0123456789.eE+-") == std::string_view::npos;
}

} // namespace

std::optional<double> ParseNumber(std::string_view text) {
    text = TrimBlanks(text);
    if (text.size() > 2 && text[0] == '&' && LowerCase(text[1]) == 'h') {
        return ParseHexadecimal(text.substr(2));
    }
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') {
            return std::nullopt;
        }
    }
    if (text.empty() || !IsPlainDecimal(text)) {
        return std::nullopt;
    }
    double number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || std::abs(number) > LargestNumber) {
        return std::nullopt;
    }
    return number;
}

double RoundHalfToEven(double number) {
    const double whole = std::floor(number);
    const double rest = number - whole;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2.0) != 0.0);
    return up ? whole + 1.0 : whole;
}

std::string FormatNumber(double number) {
    std::array<char, 32> buffer{};
    const double positive_zero = number == 0.0 ? 0.0 : number;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                            positive_zero, std::chars_format::general, 15);
    return error == std::errc() ? std::string(buffer.data(), end) : std::string();
}

void AppendInteger(std::string& text, std::int64_t number) {
    std::array<char, 24> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    if (error == std::errc()) {
        text.append(buffer.data(), end);
    }
}

} // namespace tavmoor
