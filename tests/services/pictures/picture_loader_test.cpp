#include "services/pictures/picture_loader.h"

#include "services/dialogs/file_name_check.h"
#include "services/dialogs/picture_format_check.h"
#include "services/pictures/svg_check.h"
#include "support/picture_bytes.h"
#include "support/scripted_answers.h"
#include "support/temporary_folder.h"

#include <QBuffer>
#include <QElapsedTimer>

#include <gtest/gtest.h>

namespace tavmoor {

using namespace test;

namespace {

constexpr QRgb Red = 0xFFFF0000;
constexpr QRgb Blue = 0xFF0000FF;

/// 24 rows of 32 pixels, all red but for a blue corner.
QImage Sample() {
    QImage image(32, 24, QImage::Format_RGB32);
    image.fill(QColor(Qt::red));
    image.setPixelColor(0, 0, Qt::blue);
    return image;
}

std::string Encoded(const char* format, const QImage& image = Sample()) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format, 100)) << format;
    return bytes.toStdString();
}

/// Squares of one colour each, 0xAARRGGBB, with an empty mask; kind 1 is an icon, 2 a cursor.
std::string Icons(int kind, const std::vector<std::pair<int, std::int64_t>>& sizesAndColors) {
    std::vector<IconPart> parts;
    for (const auto& [size, color] : sizesAndColors) {
        std::string bitmap =
            Longs({40, size, size * 2}) + Words({1, 32}) + Longs({0, 0, 0, 0, 0, 0});
        for (int i = 0; i < size * size; ++i) {
            bitmap += Longs({color});
        }
        bitmap.append(static_cast<std::size_t>(size * ((size + 31) / 32 * 4)), '\0');
        parts.emplace_back(size, size, bitmap);
    }
    return IconFile(kind, parts);
}

std::string FilledRectangleWmf() {
    return Wmf(40, 30,
               WmfRecord(0x02FC, Words({0, 0xFF, 0, 0})) + WmfRecord(0x012D, Words({0})) +
                   WmfRecord(0x041B, Words({25, 35, 5, 5})));
}

std::string FilledRectangleEmf() {
    return Emf(40, 30, 3,
               EmfRecord(39, Longs({1, 0, 0xFF, 0})) + EmfRecord(37, Longs({1})) +
                   EmfRecord(43, Longs({5, 5, 35, 25})));
}

class PictureLoaderTest : public testing::Test {
protected:
    PictureResult Load(const std::string& bytes) {
        return LoadPicture(folder_.Write("picture.dat", bytes));
    }
    PictureFault FaultOf(const std::string& bytes) {
        const PictureResult result = Load(bytes);
        EXPECT_EQ(result.fault == PictureFault::None, !result.image.isNull());
        return result.fault;
    }

    TemporaryFolder folder_;
};

} // namespace

TEST_F(PictureLoaderTest, LoadsEveryFormatByItsContent) {
    const std::pair<std::string, QSize> cases[] = {
        {Encoded("BMP"), {32, 24}},
        {Encoded("PNG"), {32, 24}},
        {Encoded("JPG"), {32, 24}},
        {Gif(), {1, 1}},
        {Icons(1, {{32, Red}}), {32, 32}},
        {Icons(2, {{32, Red}}), {32, 32}},
        {Icons(1, {{16, Blue}, {32, Red}, {48, Blue}}), {32, 32}},
        {FilledRectangleWmf(), {40, 30}},
        {FilledRectangleEmf(), {40, 30}},
    };
    for (const auto& [bytes, size] : cases) {
        const PictureResult result = Load(bytes);
        ASSERT_EQ(result.fault, PictureFault::None) << bytes.substr(0, 4);
        EXPECT_EQ(result.image.size(), size);
        EXPECT_EQ(PictureSize(folder_.Document("picture.dat")), size);
        const QColor middle = result.image.pixelColor(size.width() / 2, size.height() / 2);
        EXPECT_GT(middle.red(), 250) << bytes.substr(0, 4);
        EXPECT_LT(middle.green() + middle.blue(), 10) << bytes.substr(0, 4);
    }
}

TEST_F(PictureLoaderTest, RefusesWhatIsCutOffOrNoPicture) {
    EXPECT_EQ(LoadPicture(folder_.Document("missing.jpg")).fault, PictureFault::Unreadable);
    EXPECT_EQ(LoadPicture(folder_.Document()).fault, PictureFault::Unreadable);
    EXPECT_EQ(FaultOf(""), PictureFault::UnknownFormat);
    EXPECT_EQ(FaultOf("just a text"), PictureFault::UnknownFormat);
    for (const std::string& whole :
         {Encoded("BMP"), Encoded("PNG"), Encoded("JPG"), Gif(), Icons(1, {{32, Red}}),
          FilledRectangleWmf(), FilledRectangleEmf()}) {
        EXPECT_NE(FaultOf(whole.substr(0, whole.size() - 13)), PictureFault::None) << whole;
    }
}

TEST_F(PictureLoaderTest, RefusesHugeDimensionsBeforeDecoding) {
    EXPECT_NE(FaultOf(Gif(65535, 65535)), PictureFault::None);
    EXPECT_EQ(FaultOf(BmpHeaders(16000, 16000, 8, 1) + std::string(1100, '\0')),
              PictureFault::TooLarge);
    EXPECT_EQ(FaultOf(ProgressiveJpg(60000, 60000, 1, 1)), PictureFault::TooLarge);
    EXPECT_EQ(FaultOf(Wmf(32000, 32000, {})), PictureFault::TooLarge);
    EXPECT_EQ(FaultOf(Emf(100000, 100000, 0, {})), PictureFault::TooLarge);
}

TEST_F(PictureLoaderTest, RefusesJpgsOfTooManyScansOrTooMuchInThem) {
    EXPECT_EQ(FaultOf(ProgressiveJpg(8, 8, 1, 100)), PictureFault::None);
    EXPECT_EQ(FaultOf(ProgressiveJpg(8, 8, 1, 101)), PictureFault::Damaged);

    const auto size = [&](int components) {
        return PictureSize(folder_.Write("a.jpg", ProgressiveJpg(60000, 300, components, 1)));
    };
    EXPECT_EQ(size(3), QSize(60000, 300));
    EXPECT_EQ(size(4), std::nullopt);
}

TEST_F(PictureLoaderTest, DecodesNothingOfAPngButItsPixels) {
    QImage talkative = Sample();
    talkative.setText(QStringLiteral("Title"), QString(100'000, u'a'));
    const std::string png = Encoded("PNG", talkative);
    ASSERT_NE(png.find("Title"), std::string::npos);
    for (const std::string& file : {png, IconFile(1, {{32, 32, png}})}) {
        const PictureResult result = Load(file);
        ASSERT_EQ(result.fault, PictureFault::None);
        EXPECT_EQ(result.image.convertToFormat(QImage::Format_RGB32), Sample());
        EXPECT_TRUE(result.image.textKeys().isEmpty());
    }
}

TEST_F(PictureLoaderTest, TakesTheNearestPictureOfAnIcon) {
    const auto icon = folder_.Write("a.ico", Icons(1, {{24, Red}, {40, Red}, {16, Red}}));
    EXPECT_EQ(LoadPicture(icon, 16).image.width(), 16);
    EXPECT_EQ(LoadPicture(icon, 32).image.width(), 40);
}

TEST_F(PictureLoaderTest, SurvivesHostileMetafiles) {
    // Counts that go far beyond their records.
    EXPECT_EQ(FaultOf(Wmf(9, 9,
                          WmfRecord(0x0324, Words({32767, 1, 1})) +
                              WmfRecord(0x0538, Words({9999, 9999, 3})) +
                              WmfRecord(0x0521, Words({30000})) + WmfRecord(0x0F43, "xx") +
                              WmfRecord(0x0127, Words({-7})) + WmfRecord(0x012D, Words({77})) +
                              WmfRecord(0x020C, Words({0, 0})) + WmfRecord(0x0817, {}))),
              PictureFault::None);
    for (const std::int64_t kind : {2, 3, 8, 16, 56, 76, 81, 82, 84, 85, 95}) {
        const std::string broken = EmfRecord(kind, std::string(60, '\xEE'));
        FaultOf(Emf(9, 9, 1, broken)); // whatever it says, the program goes on
    }
    // Wildly changed bytes.
    const std::string whole = FilledRectangleEmf();
    for (std::size_t at = 0; at < whole.size(); at += 5) {
        std::string changed = whole;
        changed[at] = static_cast<char>(changed[at] ^ 0x7F);
        FaultOf(changed);
    }
}

TEST_F(PictureLoaderTest, GivesUpAMetafileThatPaintsWithoutEnd) {
    std::string records;
    for (int i = 0; i < 300'000; ++i) {
        records += WmfRecord(0x0418, Words({3000, 3000, 0, 0}));
    }
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(FaultOf(Wmf(3000, 3000, records)), PictureFault::Damaged);
    EXPECT_LT(clock.elapsed(), 20'000);
}

TEST_F(PictureLoaderTest, DrawsAnEmfOfVeryManyWildPointsInBoundedTime) {
    constexpr int Count = 30'000;
    constexpr int Side = 3900;
    std::string points;
    for (std::int64_t i = 0; i < Count; ++i) {
        points += Words({i * 7919 % Side, i * 104'729 % Side});
    }
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(FaultOf(Emf(Side, Side, 1, EmfRecord(86, Longs({0, 0, Side, Side, Count}) + points))),
              PictureFault::None);
    EXPECT_LT(clock.elapsed(), 30'000);
}

TEST_F(PictureLoaderTest, WmfDrawsTextBitmapsAndClips) {
    const std::string bitmap = Longs({40, 1, 1}) + Words({1, 24}) + Longs({0, 0, 0, 0, 0, 0}) +
                               std::string("\0\xFF\0\0", 4);
    const PictureResult result = Load(
        Wmf(100, 60,
            WmfRecord(0x0F43, Longs({0xCC0020}) + Words({0, 1, 1, 0, 0, 20, 20, 0, 80}) + bitmap) +
                WmfRecord(0x0102, Words({1})) + WmfRecord(0x0209, Words({0xFF, 0})) +
                WmfRecord(0x02FB, Words({-40, 0, 0, 0, 700, 0, 0, 0, 0}) + "DejaVu Sans") +
                WmfRecord(0x012D, Words({0})) + WmfRecord(0x0416, Words({60, 40, 0, 0})) +
                WmfRecord(0x0521, Words({4}) + "MMMM" + Words({5, 0}))));
    ASSERT_EQ(result.fault, PictureFault::None);
    EXPECT_EQ(result.image.pixelColor(90, 10), QColor(Qt::green));
    bool hasText = false;
    for (int y = 0; y < 60; ++y) {
        for (int x = 0; x < 100; ++x) {
            const QColor pixel = result.image.pixelColor(x, y);
            hasText = hasText || (x < 40 && pixel == QColor(Qt::red));
            EXPECT_FALSE(x > 41 && pixel.red() > 100) << "outside the clip";
        }
    }
    EXPECT_TRUE(hasText);
}

TEST(SvgCheck, RefusesWhatReachesOutside) {
    const auto check = [](const char* inside) {
        return IsSelfContainedSvg("<svg xmlns:xlink='http://www.w3.org/1999/xlink'>" +
                                      QByteArray(inside) + "</svg>",
                                  1000);
    };
    EXPECT_TRUE(check("<use xlink:href='#a'/><rect fill='url(#b)'/><text>href='x'</text>"));
    EXPECT_FALSE(check("<image xlink:href='/etc/hostname'/>"));
    EXPECT_FALSE(check("<image href='file:///etc/hostname'/>"));
    EXPECT_FALSE(check("<image href='data:image/png;base64,AAAA'/>"));
    EXPECT_FALSE(check("<rect style='fill: url( http://a.example/x )'/>"));
    EXPECT_FALSE(check("<style>@import 'x';</style>"));
    EXPECT_FALSE(check("<g>"));
    EXPECT_FALSE(IsSelfContainedSvg("<!DOCTYPE svg [<!ENTITY a 'b'>]><svg>&a;</svg>", 1000));
}

TEST_F(PictureLoaderTest, CheckAsksAndOpensTheWorkaround) {
    std::vector<std::string> opened;
    const PictureFormatChecker checker(nullptr, "C:\\Tavmoor",
                                       [&](const std::string& path) { opened.push_back(path); });
    ScriptedBoxes boxes({BoxAnswer::Yes, BoxAnswer::No});
    const std::string text = folder_.Write("text.jpg", "no picture");
    EXPECT_EQ(checker.PictureFormatCheck(folder_.Write("good.jpg", Encoded("BMP"))), -1);
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(checker.PictureFormatCheck(text), 0);
    EXPECT_EQ(checker.PictureFormatCheck(text), 0);
    EXPECT_EQ(opened, std::vector<std::string>{"C:\\Tavmoor\\jpeg_compability.htm"});
    ASSERT_EQ(boxes.shown.size(), 2U);
    EXPECT_EQ(boxes.shown[0].title, QStringLiteral("Warning"));
    EXPECT_EQ(boxes.shown[0].text,
              QStringLiteral("Picture format compatibility problem. Click YES to see workaround "
                             "for the problem..."));
}

TEST(FileNameCheck, ShowsWhyAFileIsRefused) {
    ScriptedBoxes boxes({BoxAnswer::Ok});
    EXPECT_FALSE(CheckFileName(nullptr, ""));
    EXPECT_FALSE(CheckFileName(nullptr, "C:\\\xC8 folder\\my file (1).jpg"));
    EXPECT_TRUE(CheckFileName(nullptr, "C:\\a\\one,two.jpg"));
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(boxes.shown[0].text.contains(
        QStringLiteral("Filename [one,two.jpg] must be changed to English filename.")));
}

} // namespace tavmoor
