#pragma once

#include <string>

namespace tavmoor {

/// Leaves of a png the chunks that make its pixels. The others, texts and colour profiles, are
/// unpacked by the decoder before it tells the size, each to megabytes from a few kilobytes.
/// @return false when the signature or a chunk is cut off, such as one longer than the file
bool KeepPixelChunks(std::string& png);

} // namespace tavmoor
