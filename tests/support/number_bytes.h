#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

namespace tavmoor::test {

/// Numbers as pictures and programs hold them, the lowest byte first.
inline std::string Numbers(std::size_t bytesEach, std::initializer_list<std::int64_t> values) {
    std::string text;
    for (const std::int64_t value : values) {
        for (std::size_t i = 0; i < bytesEach; ++i) {
            text.push_back(static_cast<char>(static_cast<std::uint64_t>(value) >> (8 * i) & 0xFFU));
        }
    }
    return text;
}
inline std::string Bytes(std::initializer_list<std::int64_t> values) {
    return Numbers(1, values);
}
inline std::string Words(std::initializer_list<std::int64_t> values) {
    return Numbers(2, values);
}
inline std::string Longs(std::initializer_list<std::int64_t> values) {
    return Numbers(4, values);
}

} // namespace tavmoor::test
