#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace tavmoor {

/// Fills the buffer from an offset of a file; false when the file has not that many bytes there.
using ReadAt = std::function<bool(std::uint64_t offset, std::span<unsigned char> buffer)>;

/// The bytes of a Windows program's version resource, 32-bit or 64-bit: the first of its names and
/// languages. Nothing when the file is no such program or has no such resource. Any bytes are
/// survived; less than two megabytes are read in all.
std::optional<std::vector<unsigned char>> ReadVersionResource(const ReadAt& read);

} // namespace tavmoor
