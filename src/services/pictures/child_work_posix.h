#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace tavmoor {

struct ChildLimits {
    std::size_t memory = 0; ///< bytes, beyond what the program has already
    std::size_t output = 0; ///< bytes
    std::chrono::seconds time{0};
};

/// Does work in a process of its own and hands over what it returns: for a C library that hostile
/// files make crash, hang or eat memory. The work must touch no window, no file that the program
/// has open, and no lock that another thread may hold. It ends with the program.
/// @return nothing when the work crashed, threw, or went beyond a limit
std::optional<std::string> DoInChild(const std::function<std::string()>& work,
                                     const ChildLimits& limits);

} // namespace tavmoor
