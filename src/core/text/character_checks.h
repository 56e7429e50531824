#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavmoor {

/// The characters that the autorun's own name may have.
inline constexpr std::string_view AllowedNameCharacters =
    "1234567890qwertyuiopasdfghjklzxcvbnmQWERTYUIOPASDFGHJKLZXCVBNM_-";

/// True when every character of the name is in AllowedNameCharacters; so for "".
bool IsValidName(std::string_view name);

/// The message that refuses a chosen file for its name; nothing when the name is fine or the path
/// is empty. The caller shows it with an OK button and leaves its field as it was.
std::optional<std::string> FileNameObjection(std::string_view path);

} // namespace tavmoor
