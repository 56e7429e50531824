#pragma once

#include <cstdint>
#include <string_view>
#include <system_error>

namespace tavmoor {

/// An open file as the platform numbers it: a descriptor, or a handle. For code that writes with
/// the platform's own calls.
using NativeFile = std::intptr_t;

/// Why the platform's last call failed.
std::error_code LastNativeError();

/// Writes the bytes whole, in as many calls as it takes.
std::error_code WriteAll(NativeFile file, std::string_view bytes);

} // namespace tavmoor
