#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tavmoor {

// Numbers of a file, lowest byte first; what lies beyond its end reads as 0.

inline std::uint32_t ByteAt(std::string_view bytes, std::size_t position) {
    return position < bytes.size() ? static_cast<unsigned char>(bytes[position]) : 0U;
}

inline std::uint32_t Little16(std::string_view bytes, std::size_t position) {
    return ByteAt(bytes, position) | ByteAt(bytes, position + 1) << 8;
}

inline std::uint32_t Little32(std::string_view bytes, std::size_t position) {
    return Little16(bytes, position) | Little16(bytes, position + 2) << 16;
}

} // namespace tavmoor
