#include "menu/picture_size.h"

#include "menu/icon_picture.h"

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

/// An icon, kind 1, or a cursor, kind 2: a picture of 16 by 16 and `data` as a larger one.
std::string Icon(int kind, int width, int height, const std::string& data) {
    const std::string small = "small one";
    const auto length = static_cast<std::uint32_t>(data.size());
    return Bytes({0, 0, kind, 0, 2, 0, 16, 16}) + "colour" + Little32(9) + Little32(38) +
           Bytes({width, height}) + "colour" + Little32(length) + Little32(47) + small + data;
}

/// An emf file of 10.16 by 5.08 cm.
std::string EnhancedMetafile() {
    return Little32(1) + std::string(20, 'b') + Little32(0xFFFFFFFF) + Little32(0) +
           Little32(10159) + Little32(5080) + " EMF";
}

/// A wmf file of two by one inch.
std::string PlaceableMetafile(int unitsPerInch) {
    return Bytes({0xD7, 0xCD, 0xC6, 0x9A, 0, 0, 0x9C, 0xFF, 0, 0, 0x64, 0, 0x64, 0}) +
           Bytes({unitsPerInch, 0}) + std::string(6, 'r');
}

} // namespace

TEST(PictureSize, IsReadFromIconsAndMetafiles) {
    EXPECT_EQ(ReadPictureSize(Icon(1, 48, 32, "pixels")), (Extent{48, 32}));
    EXPECT_EQ(ReadPictureSize(Icon(2, 0, 0, "pixels")), (Extent{256, 256}));
    EXPECT_EQ(ReadPictureSize(Icon(1, 48, 32, "pixels").substr(1)), std::nullopt);
    EXPECT_EQ(ReadPictureSize(EnhancedMetafile()), (Extent{384, 192}));
    EXPECT_EQ(ReadPictureSize(PlaceableMetafile(100)), (Extent{192, 96}));
    EXPECT_EQ(ReadPictureSize(PlaceableMetafile(0)), std::nullopt);
    EXPECT_TRUE(IsMetafile(EnhancedMetafile()) && IsMetafile(PlaceableMetafile(100)));
    EXPECT_FALSE(IsMetafile(Bitmap(1, 1)));
}

TEST(IconPicture, BecomesAFileOfItsOwn) {
    const std::string cursor = Icon(2, 48, 32, "pixels");
    EXPECT_EQ(FileOf(*LargestOfIcon(cursor)),
              Bytes({0, 0, 1, 0, 1, 0, 48, 32}) + "colour" + Little32(6) + Little32(22) + "pixels");
    const std::string withPng = Icon(1, 0, 0, "\x89PNG and so on");
    EXPECT_EQ(FileOf(*LargestOfIcon(withPng)), "\x89PNG and so on");
}

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
         {Bitmap(64, 64), Gif({0, 0, 0, 0, 16, 0, 8, 0}), Jpeg(), Icon(1, 32, 32, "123456789"),
          EnhancedMetafile(), std::string("II*\0", 4)}) {
        for (std::size_t length = 0; length + 9 < whole.size(); ++length) {
            EXPECT_EQ(ReadPictureSize(whole.substr(0, length)), std::nullopt) << length;
        }
    }
    EXPECT_EQ(ReadPictureSize("\x89PNG\r\n\x1A\n"), std::nullopt);
}

} // namespace tavmoor
