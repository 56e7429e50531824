#pragma once

#include <string>
#include <string_view>

namespace tavmoor {

/// UTF-8 as the system's calls take it; bytes that are no UTF-8 become U+FFFD.
std::wstring Wide(std::string_view utf8);

/// The way back.
std::string Narrow(std::wstring_view text);

/// The system's words for one of its error numbers.
std::string SystemErrorText(unsigned long number);

} // namespace tavmoor
