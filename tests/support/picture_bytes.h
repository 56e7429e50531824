#pragma once

#include "support/number_bytes.h"

#include <tuple>
#include <vector>

namespace tavmoor::test {

inline std::string JpgSegment(int marker, const std::string& content) {
    const int length = static_cast<int>(content.size()) + 2;
    return Bytes({0xFF, marker, length >> 8, length & 0xFF}) + content;
}

/// Grey all over: one scan for the means of its blocks, and more that change nothing. The data are
/// those of a single block.
inline std::string ProgressiveJpg(int width, int height, int components, int scans) {
    std::string frame =
        Bytes({8, height >> 8, height & 0xFF, width >> 8, width & 0xFF, components});
    std::string means = Bytes({components});
    for (int i = 1; i <= components; ++i) {
        frame += Bytes({i, 0x11, 0});
        means += Bytes({i, 0});
    }
    const std::string oneCode = Bytes({1}) + std::string(16, '\0');
    std::string jpg = Bytes({0xFF, 0xD8}) + JpgSegment(0xDB, '\0' + std::string(64, '\1')) +
                      JpgSegment(0xC2, frame) + JpgSegment(0xC4, Bytes({0x00}) + oneCode) +
                      JpgSegment(0xC4, Bytes({0x10}) + oneCode) +
                      JpgSegment(0xDA, means + Bytes({0, 0, 0})) + Bytes({0x0F});
    for (int i = 1; i < scans; ++i) {
        jpg += JpgSegment(0xDA, Bytes({1, 1, 0, 1, 63, 0})) + Bytes({0x7F});
    }
    return jpg + Bytes({0xFF, 0xD9});
}

/// A screen with a comment, and one pixel of red.
inline std::string Gif(int width = 1, int height = 1, int left = 0) {
    return "GIF89a" + Words({width, height}) + Bytes({0x80, 0, 0, 0xFF, 0, 0, 0, 0, 0}) +
           Bytes({'!', 0xFE, 3}) + ",,," + Bytes({0, ','}) + Words({left, 0, 1, 1}) +
           Bytes({0, 2, 2, 0x44, 1, 0, ';'});
}

/// A bmp without its rows.
inline std::string BmpHeaders(std::int64_t width, std::int64_t height, int bits, int compression) {
    return "BM" + Longs({0, 0, 54, 40, width, height}) + Words({1, bits}) +
           Longs({compression, 0, 0, 0, 0, 0});
}

/// A width, a height and a picture.
using IconPart = std::tuple<int, int, std::string>;

/// Kind 1 is an icon, 2 a cursor.
inline std::string IconFile(int kind, const std::vector<IconPart>& parts) {
    std::string entries;
    std::string pictures;
    for (const auto& [width, height, picture] : parts) {
        entries += Bytes({width, height, 0, 0}) + Words({1, kind == 1 ? 32 : 5}) +
                   Longs({static_cast<std::int64_t>(picture.size()),
                          static_cast<std::int64_t>(6 + 16 * parts.size() + pictures.size())});
        pictures += picture;
    }
    return Words({0, kind, static_cast<std::int64_t>(parts.size())}) + entries + pictures;
}

inline const std::string PngSignature = "\x89PNG\r\n\x1A\n";

inline std::string PngChunk(const std::string& name, const std::string& content) {
    return Bytes({0, 0, 0, static_cast<int>(content.size())}) + name + content + "sum.";
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
