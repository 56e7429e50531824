#include "core/formats/emf_header.h"
#include "core/formats/wmf_header.h"
#include "support/picture_bytes.h"

#include <gtest/gtest.h>

namespace tavmoor {

using namespace test;

TEST(MetafileHeaders, TellTheSizeInPixels) {
    const auto placed = [](std::int64_t right, std::int64_t unitsPerInch) {
        const auto frame = Words({-100, 0, right, 1, unitsPerInch});
        return ReadWmfPlacing(Wmf(0, 0, {}).replace(6, 10, frame)).value_or(WmfPlacing{}).size;
    };
    EXPECT_EQ(placed(100, 100), (PixelSize{192, 1}));
    EXPECT_EQ(placed(-200, 1000), (PixelSize{10, 1})) << "turned over; at least one pixel";
    EXPECT_EQ(placed(100, 0), PixelSize{});
    EXPECT_EQ(placed(20000, 1), PixelSize{}) << "beyond a million pixels";
    const auto drawn = [](std::int64_t right) {
        return ReadEmfSize(Emf(1, 1, 0, {}).replace(24, 16, Longs({-1, 0, right, 5080})));
    };
    EXPECT_EQ(drawn(10159), (PixelSize{384, 192}));
    EXPECT_EQ(drawn(-1), std::nullopt);
    EXPECT_EQ(drawn(0x7FFFFFFF), std::nullopt);
}

TEST(WmfHeader, TakesTheFirstWindowWithoutAPlacing) {
    const std::string first = WmfRecord(0x020B, Words({3, 4}));
    const std::string wmf =
        Wmf(7, 8, first + WmfRecord(0x020C, Words({-30, 40})) + WmfRecord(0x020B, Words({9, 9})))
            .substr(22);
    const auto outline = OutlineWmf(wmf);
    ASSERT_TRUE(outline);
    EXPECT_EQ(outline->size, (PixelSize{40, 30}));
    EXPECT_EQ(outline->frame.left, 4);
    EXPECT_EQ(outline->frame.height, -30);
    EXPECT_EQ(WmfRecordAt(wmf, outline->records), first);
}

TEST(MetafileHeaders, WantAllRecordsWithinTheFile) {
    const std::string wmf = Wmf(40, 30, WmfRecord(0x012D, Words({0})));
    const std::string emf = Emf(40, 30, 1, EmfRecord(37, Longs({1})));
    EXPECT_EQ(OutlineWmf(wmf)->recordCount, 2U);
    EXPECT_EQ(OutlineEmf(emf)->recordCount, 3U);
    for (std::size_t length = 0; length < emf.size(); ++length) {
        EXPECT_FALSE(length < wmf.size() && OutlineWmf(wmf.substr(0, length))) << length;
        EXPECT_FALSE(OutlineEmf(emf.substr(0, length))) << length;
    }
    for (const std::int64_t size : {0, 2, 0x7FFFFFFF}) {
        EXPECT_FALSE(OutlineWmf(std::string(wmf).replace(40, 4, Longs({size})))) << size;
        EXPECT_FALSE(OutlineEmf(std::string(emf).replace(92, 4, Longs({size})))) << size;
    }
}

} // namespace tavmoor
