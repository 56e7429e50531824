#include "menu/picture_size.h"
#include "support/picture_bytes.h"

#include <gtest/gtest.h>

namespace tavmoor {

TEST(PictureSize, IsReadFromTheHeadOfEveryFormat) {
    EXPECT_EQ(ReadPictureSize(test::ProgressiveJpg(600, 300, 3, 1)), (Extent{600, 300}));
    EXPECT_EQ(ReadPictureSize(test::Gif(16, 8)), (Extent{16, 8}));
    EXPECT_EQ(ReadPictureSize(test::IconFile(1, {{48, 32, "p"}, {16, 16, "p"}})), (Extent{48, 32}));
    EXPECT_EQ(ReadPictureSize(test::IconFile(2, {{0, 0, "p"}})), (Extent{256, 256}));
    EXPECT_EQ(ReadPictureSize(test::Emf(384, 192, 0, {})), (Extent{384, 192}));
    EXPECT_EQ(ReadPictureSize(test::Wmf(192, 96, {})), (Extent{192, 96}));
    EXPECT_EQ(ReadPictureSize(test::Wmf(-192, 96, {})), std::nullopt);
    EXPECT_EQ(ReadPictureSize(test::PngSignature), std::nullopt);
    EXPECT_EQ(ReadPictureSize(std::string("II*\0", 4)), std::nullopt);
}

TEST(PictureSize, RefusesWhatWouldFillTheMemory) {
    const auto bitmap = [](std::int64_t width, std::int64_t height) {
        return ReadPictureSize(test::BmpHeaders(width, height, 24, 0));
    };
    EXPECT_EQ(bitmap(8192, 8192), (Extent{8192, 8192}));
    EXPECT_EQ(bitmap(8192, 8193), std::nullopt);
    EXPECT_EQ(bitmap(0x7FFFFFFF, 0x80000000), std::nullopt);
}

} // namespace tavmoor
