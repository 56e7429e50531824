#pragma once

#include <string>
#include <string_view>

namespace tavmoor {

/// A text of the core as the Windows API takes it.
std::wstring WideText(std::string_view codePageText);

/// A text of the Windows API in the system's code page; what has no place there becomes '?'.
std::string NarrowText(std::wstring_view text);

} // namespace tavmoor
