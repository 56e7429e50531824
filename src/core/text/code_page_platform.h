#pragma once

#include <array>
#include <optional>

namespace tavmoor {

/// The number of the code page that the platform and the user's language give.
int PlatformCodePageNumber();

/// The character of each byte in a code page, nothing for the bytes that it leaves undefined.
std::array<std::optional<char32_t>, 256> PlatformCodePageTable(int number);

} // namespace tavmoor
