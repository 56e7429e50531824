#include "core/formats/bmp_header.h"
#include "core/formats/gif_header.h"
#include "core/formats/icon_directory.h"
#include "core/formats/jpg_header.h"
#include "core/formats/picture_format.h"
#include "core/formats/png_chunks.h"
#include "support/picture_bytes.h"

#include <gtest/gtest.h>

namespace tavmoor {

using namespace test;

namespace {

/// Empty when there is no frame.
PixelSize FrameSize(const std::string& jpg) {
    return ReadJpgFrame(jpg).value_or(JpgFrame{}).size;
}

/// No shorter file is whole, and each tells the right size or none.
template <typename Reader>
void ExpectWholeOnly(const std::string& whole, const Reader& read) {
    ASSERT_TRUE(read(whole) && read(whole)->isWhole);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const auto cut = read(whole.substr(0, length));
        EXPECT_TRUE(!cut || (!cut->isWhole && cut->size == read(whole)->size)) << length;
    }
}

} // namespace

TEST(PictureFormat, IsToldByTheWholeSignature) {
    EXPECT_EQ(PictureFormatOf("GIF88a"), PictureFormat::Unknown);
    EXPECT_EQ(PictureFormatOf("\x89PNG\n\n"), PictureFormat::Unknown);
    EXPECT_EQ(PictureFormatOf(Emf(1, 1, 0, {}).substr(0, 43)), PictureFormat::Unknown);
    EXPECT_EQ(PictureFormatOf(BmpHeaders(1, 1, 24, 0).replace(40, 4, " EMF")), PictureFormat::Bmp);
}

TEST(JpgHeader, FindsTheFrameAsDecodersDo) {
    const std::string start = Bytes({0xFF, 0xD8});
    const std::string falseFrame = JpgSegment(0xE1, JpgSegment(0xC0, "123456"));
    const std::string stray = "\xFF\xFF" + falseFrame + "stray" + Bytes({0xFF, 0, 0xFF, 0xD3});
    const std::string frame = JpgSegment(0xC1, Bytes({8, 1, 0x2C, 2, 0x58, 3}));
    EXPECT_EQ(FrameSize(start + stray + JpgSegment(0xC4, "") + frame), (PixelSize{600, 300}));
    EXPECT_EQ(FrameSize(start + JpgSegment(0xDA, "") + frame), PixelSize{});
    EXPECT_EQ(FrameSize(start + Bytes({0xFF, 0xD9}) + frame), PixelSize{});
    EXPECT_EQ(FrameSize(start + frame.substr(0, frame.size() - 1)), PixelSize{});
}

TEST(JpgHeader, CountsScansAndComponents) {
    std::string jpg = ProgressiveJpg(8, 8, 3, 5);
    jpg.insert(2, JpgSegment(0xFE, "\xFF\xDA\xFF\xD9"));
    const JpgOutline progressive = OutlineJpg(jpg);
    EXPECT_TRUE(progressive.isEnded && progressive.isInSeveralScans);
    EXPECT_EQ(progressive.scans, 5);
    EXPECT_EQ(progressive.components, 3);
    for (std::size_t length = 0; length < jpg.size(); ++length) {
        EXPECT_FALSE(OutlineJpg(jpg.substr(0, length)).isEnded) << length;
    }
    std::string plain = ProgressiveJpg(8, 8, 3, 1);
    plain[plain.find("\xFF\xC2") + 1] = '\xC0';
    EXPECT_FALSE(OutlineJpg(plain).isInSeveralScans);
    plain[plain.find("\xFF\xDA") + 4] = 1; // the other components are in other scans
    EXPECT_TRUE(OutlineJpg(plain).isInSeveralScans);
}

TEST(GifHeader, TellsTheLargerOfScreenAndPicture) {
    const std::string gif = Gif(16, 8, 0xFFFF);
    EXPECT_EQ(ReadGifHeader(gif)->size, (PixelSize{0x10000, 8}));
    // The last byte ends the list of pictures, of which the first is enough.
    ExpectWholeOnly(gif.substr(0, gif.size() - 1), ReadGifHeader);
}

TEST(BmpHeader, TellsTheSizeAndWhetherAllRowsAreThere) {
    const std::string rows(100, '\0');
    const std::string old = "BM" + Longs({0, 0, 26, 12}) + Words({800, 2, 1, 1});
    EXPECT_EQ(ReadBmpHeader(old)->size, (PixelSize{800, 2}));
    EXPECT_EQ(ReadBmpHeader(BmpHeaders(6, -0x80000000LL, 24, 0))->size, (PixelSize{6, 1LL << 31}));
    EXPECT_FALSE(ReadBmpHeader(BmpHeaders(-1, 1, 24, 0)));
    ExpectWholeOnly(old + rows + rows, ReadBmpHeader);
    ExpectWholeOnly(BmpHeaders(2, -2, 24, 0) + "rows of 8 bytes.", ReadBmpHeader);
    EXPECT_FALSE(ReadBmpHeader(BmpHeaders(1, 1, 0, 0) + rows)->isWhole);
    EXPECT_FALSE(ReadBmpHeader(BmpHeaders(0x7FFFFFFF, 0x7FFFFFFF, 32, 0) + rows)->isWhole);
    EXPECT_TRUE(ReadBmpHeader(BmpHeaders(999, 999, 8, 1) + rows)->isWhole);
    EXPECT_FALSE(ReadBmpHeader(BmpHeaders(999, 999, 8, 1) + "no end")->isWhole);
}

TEST(PngChunks, KeepsThoseThatMakePixels) {
    const std::string head = PngSignature + PngChunk("IHDR", "size");
    const std::string pixels = PngChunk("IDAT", "pixels") + PngChunk("IEND", "");
    std::string png = head + PngChunk("tEXt", "words") + pixels + "what follows";
    EXPECT_TRUE(KeepPixelChunks(png));
    EXPECT_EQ(png, head + pixels);
    for (std::string cut : {PngSignature.substr(1), head.substr(0, head.size() - 1),
                            PngSignature + "\xFF\xFF\xFF\xFFtEXt" + std::string(100, 'a')}) {
        EXPECT_FALSE(KeepPixelChunks(cut)) << cut.size();
    }
}

TEST(IconDirectory, ChoosesByWidth) {
    const std::string icon = IconFile(1, {{24, 1, "a"}, {40, 2, "b"}, {16, 3, "c"}, {40, 4, "d"}});
    EXPECT_EQ(NearestIconPicture(icon, 16)->bytes, "c");
    EXPECT_EQ(NearestIconPicture(icon, 32)->index, 1); // the larger of two, the first of several
    EXPECT_EQ(WidestIconPicture(icon)->size, (PixelSize{40, 4}));
    EXPECT_EQ(WidestIconPicture(IconFile(2, {{0, 0, "b"}}))->size, (PixelSize{256, 256}));
    for (std::size_t length = 0; length < icon.size(); ++length) {
        EXPECT_FALSE(NearestIconPicture(icon.substr(0, length), 32)) << length;
    }
    EXPECT_FALSE(WidestIconPicture(IconFile(1, {{16, 16, ""}, {48, 48, "p"}})));
    EXPECT_FALSE(WidestIconPicture(IconFile(3, {{16, 16, "p"}})));
}

TEST(IconDirectory, MakesAFileOfOnePicture) {
    std::string alone = IconFile(2, {{48, 32, "pixels"}});
    alone[2] = 1; // laid out like an icon
    const std::string cursor = IconFile(2, {{48, 32, "pixels"}, {16, 16, "small"}});
    EXPECT_EQ(SinglePictureFile(*WidestIconPicture(cursor)), alone);
    const std::string png = PngSignature + "and so on";
    EXPECT_EQ(SinglePictureFile(*WidestIconPicture(IconFile(1, {{0, 0, png}}))), png);
}

} // namespace tavmoor
