#include "package/name_scrambling.h"

#include "core/files/runtime_error.h"

#include <algorithm>
#include <chrono>
#include <random>

namespace tavmoor {

namespace {

constexpr unsigned Shift = 128;

bool IsPlain(char character) {
    return static_cast<unsigned char>(character) < Shift;
}

} // namespace

std::string ScrambleText(std::string_view text) {
    if (!CanBeScrambled(text)) {
        throw RuntimeError(ErrorNumber::InvalidCall, text);
    }
    const auto clock = std::chrono::steady_clock::now().time_since_epoch().count();
    std::minstd_rand random(static_cast<std::minstd_rand::result_type>(clock));
    const auto filler = [&random] { return static_cast<char>((random() >> 8U) % Shift + Shift); };
    std::string scrambled;
    scrambled.reserve(text.size() * 3);
    for (const char character : text) {
        scrambled += static_cast<char>(static_cast<unsigned char>(character) + Shift);
        scrambled += filler();
        scrambled += filler();
    }
    return scrambled;
}

bool CanBeScrambled(std::string_view text) {
    return std::all_of(text.begin(), text.end(), IsPlain);
}

std::optional<std::string> UnscrambleText(std::string_view scrambled) {
    if (scrambled.size() % 3 != 0 || std::any_of(scrambled.begin(), scrambled.end(), IsPlain)) {
        return std::nullopt;
    }
    std::string text;
    text.reserve(scrambled.size() / 3);
    for (std::size_t i = 0; i < scrambled.size(); i += 3) {
        text += static_cast<char>(static_cast<unsigned char>(scrambled[i]) - Shift);
    }
    return text;
}

} // namespace tavmoor
