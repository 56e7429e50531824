#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tavmoor {

// Numbers of a Windows program file. The caller has made sure that the bytes are there.

constexpr std::uint16_t LittleEndian16(std::span<const unsigned char> bytes, std::size_t at) {
    return static_cast<std::uint16_t>(bytes[at] | bytes[at + 1] << 8U);
}

constexpr std::uint32_t LittleEndian32(std::span<const unsigned char> bytes, std::size_t at) {
    return LittleEndian16(bytes, at) | static_cast<std::uint32_t>(LittleEndian16(bytes, at + 2))
                                           << 16U;
}

} // namespace tavmoor
