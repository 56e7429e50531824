#include "menu/picture_size.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace tavmoor {

namespace {

std::string Bytes(std::initializer_list<int> values) {
    std::string bytes;
    for (const int value : values) {
        bytes += static_cast<char>(value);
    }
    return bytes;
}

std::string Little32(std::uint32_t number) {
    std::string bytes;
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>((number >> shift) & 0xFFU);
    }
    return bytes;
}

std::string Bitmap(std::uint32_t width, std::uint32_t height) {
    return "BM" + std::string(12, '\0') + Little32(40) + Little32(width) + Little32(height);
}

/// A GIF with a screen of 16 by 8, a colour table, a comment and one frame.
std::string Gif(std::initializer_list<int> frame) {
    return "GIF89a" + Bytes({16, 0, 8, 0, 0x80, 0, 0}) + std::string(6, 'c') +
           Bytes({0x21, 0xFE, 3}) + "abc" + Bytes({2, 0x2C, 0x2C, 0, 0x2C}) + Bytes(frame);
}

/// A JPEG up to its frame head, with a segment that holds a false one before it.
std::string Jpeg() {
    return Bytes({0xFF, 0xD8, 0xFF, 0xE1, 0, 8,    0xFF, 0xC0, 0,  1, 0,    1,    0xFF, 0xFF,
                  0xC4, 0,    4,    0,    0, 0xFF, 0xC2, 0,    11, 8, 0x01, 0x2C, 0x02, 0x58});
}

} // namespace

TEST(PictureSize, IsReadFromTheHead) {
    EXPECT_EQ(ReadPictureSize(Bitmap(640, 480)), (Extent{640, 480}));
    EXPECT_EQ(ReadPictureSize(Bitmap(640, static_cast<std::uint32_t>(-480))), (Extent{640, 480}));
    EXPECT_EQ(ReadPictureSize("BM" + std::string(12, '\0') + Little32(12) +
                              Bytes({0x20, 0x03, 0x58, 0x02})),
              (Extent{800, 600}));
    EXPECT_EQ(ReadPictureSize(Gif({0, 0, 0, 0, 16, 0, 8, 0})), (Extent{16, 8}));
    EXPECT_EQ(ReadPictureSize(Jpeg()), (Extent{600, 300}));
}

TEST(PictureSize, RefusesWhatWouldFillTheMemory) {
    EXPECT_EQ(ReadPictureSize(Bitmap(60000, 60000)), std::nullopt);
    EXPECT_EQ(ReadPictureSize(Bitmap(8192, 8193)), std::nullopt);
    EXPECT_EQ(ReadPictureSize(Bitmap(8192, 8192)), (Extent{8192, 8192}));
    EXPECT_EQ(ReadPictureSize(Bitmap(0x7FFFFFFF, 0x80000000)), std::nullopt);
    // A frame that is larger than the screen counts.
    EXPECT_EQ(ReadPictureSize(Gif({0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF})), std::nullopt);
}

TEST(PictureSize, SurvivesEveryCut) {
    for (const std::string& whole :
         {Bitmap(64, 64), Gif({0, 0, 0, 0, 16, 0, 8, 0}), Jpeg(), std::string("II*\0", 4)}) {
        for (std::size_t length = 0; length + 9 < whole.size(); ++length) {
            EXPECT_EQ(ReadPictureSize(whole.substr(0, length)), std::nullopt) << length;
        }
    }
    EXPECT_EQ(ReadPictureSize("\x89PNG\r\n\x1A\n"), std::nullopt);
}

} // namespace tavmoor
