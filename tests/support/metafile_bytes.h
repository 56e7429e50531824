#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tavmoor::test {

/// Numbers in the order of bytes of picture files.
inline std::string Numbers(std::size_t bytesEach, std::initializer_list<std::int64_t> values) {
    std::string text;
    for (const std::int64_t value : values) {
        for (std::size_t i = 0; i < bytesEach; ++i) {
            text.push_back(static_cast<char>(static_cast<std::uint64_t>(value) >> (8 * i) & 0xFFU));
        }
    }
    return text;
}
inline std::string Words(std::initializer_list<std::int64_t> values) {
    return Numbers(2, values);
}
inline std::string Longs(std::initializer_list<std::int64_t> values) {
    return Numbers(4, values);
}

inline std::string WmfRecord(std::int64_t function, std::string data) {
    data.append(data.size() % 2, '\0');
    return Longs({static_cast<std::int64_t>(3 + data.size() / 2)}) + Words({function}) + data;
}

/// A wmf with a placing header; 96 units are an inch, so that a unit is a pixel.
inline std::string Wmf(int width, int height, const std::string& records) {
    const std::string body = records + WmfRecord(0, {});
    return Longs({0x9AC6CDD7}) + Words({0, 0, 0, width, height, 96, 0, 0, 0}) +
           Words({1, 9, 0x300}) + Longs({static_cast<std::int64_t>(9 + body.size() / 2)}) +
           Words({8}) + Longs({100}) + Words({0}) + body;
}

inline std::string EmfRecord(std::int64_t kind, const std::string& data) {
    return Longs({kind, static_cast<std::int64_t>(8 + data.size())}) + data;
}

/// An emf whose frame is so many pixels of 1/96 inch; `count` is the number of `records`.
inline std::string Emf(int width, int height, int count, const std::string& records) {
    const std::string body = records + EmfRecord(14, Longs({0, 16, 20}));
    return EmfRecord(
               1,
               Longs({0, 0, width - 1, height - 1, 0, 0, width * 2540 / 96, height * 2540 / 96}) +
                   " EMF" +
                   Longs({0x10000, static_cast<std::int64_t>(88 + body.size()), count + 2}) +
                   Words({4, 0}) + Longs({0, 0, 0, 1920, 1080, 508, 286})) +
           body;
}

} // namespace tavmoor::test
