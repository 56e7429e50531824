#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavmoor {

/// Scrambles a name or a size for the package's header: each character becomes its code plus 128,
/// followed by two random bytes of 128 to 255. It hides the names from a casual look and is no
/// security.
/// @throws RuntimeError 5 for a text with a character of code 128 or above
std::string ScrambleText(std::string_view text);

/// True when ScrambleText takes the text.
bool CanBeScrambled(std::string_view text);

/// The text behind a scrambled one: every third byte less 128. Nothing when the text is none that
/// ScrambleText could have given.
std::optional<std::string> UnscrambleText(std::string_view scrambled);

} // namespace tavmoor
