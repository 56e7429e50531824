#include "core/text/value_encoding.h"

#include "core/text/number_text.h"
#include "core/text/path_text.h"

#include <gtest/gtest.h>

namespace tavmoor {

TEST(ValueEncoding, TextsStandOnOneLineAndComeBack) {
    EXPECT_EQ(EncodeText("a\r\nb\n&&"), "aChr$(13)Chr$(10)bChr$(10)Chr$(38)Chr$(38)");
    for (const char* text : {"", "plain", "a&b", "\r\n\r\n", "&\n&", "chr$(13)", "Chr$(1 3)"}) {
        EXPECT_EQ(DecodeText(EncodeText(text)), text);
    }
    EXPECT_EQ(DecodeText("typed Chr$(13) by hand"), "typed \r by hand");
    EXPECT_EQ(DecodeText("Chr$(3Chr$(38)8)"), "Chr$(3&8)");
}

TEST(ValueEncoding, SizesAreRoundedToWholePointsHalfToEven) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "10"},    {"8.25", "8"},  {"10.5", "10"}, {"11.5", "12"},
        {"12", "12"},  {"9.75", "10"}, {"0.5", "0"},   {"-1.5", "-2"},
        {"-0.4", "0"}, {" 14 ", "14"}, {"1e2", "100"}, {"big", "big"}};
    for (const auto& [value, rounded] : cases) {
        EXPECT_EQ(RoundSize(value), rounded) << value;
    }
}

TEST(ValueEncoding, PathsAreCutByTheirText) {
    EXPECT_EQ(FileNameOf("C:\\a\\b.txt"), "b.txt");
    EXPECT_EQ(FileNameOf("b.txt"), "b.txt");
    EXPECT_EQ(FileNameOf("C:\\a\\"), "");
    EXPECT_EQ(RelativeToCdFolder("Z:\\disc\\run\\a.exe", "Z:\\disc\\"), "run\\a.exe");
    EXPECT_EQ(RelativeToCdFolder("Z:\\else\\a.exe", "Z:\\disc"), "\\a.exe");
    EXPECT_EQ(RelativeToCdFolder("Z:\\a", "Z:\\disc"), "");
    // The stored value, not the folder, decides on the separator.
    const std::pair<const char*, const char*> cases[] = {
        {"%Templates\\Blue.tavt", "Z:\\app\\Templates\\Blue.tavt"},
        {"%\\x.png", "Z:\\app\\\\x.png"},
        {"%", "Z:\\app\\"},
        {"%Art\\", "Z:\\appArt\\"},
        {"Z:\\a%b", "Z:\\a%b"},
        {"", ""}};
    for (const auto& [stored, expanded] : cases) {
        EXPECT_EQ(ExpandProgramFolder(stored, "Z:\\app"), expanded);
    }
}

TEST(ValueEncoding, MonthsHaveEnglishNames) {
    std::string names;
    for (int month = 0; month <= 13; ++month) {
        names += MonthName(month);
    }
    EXPECT_EQ(names, "JanFebMarAprMayJunJulAugSepOctNovDec");
}

TEST(NumberText, ReadsWholeTextsThatFitTheirType) {
    for (const char* text : {"", " ", "-", "+", "+-1", "1x", "0x10", "nan", "inf", "1e999", "&H",
                             "&HG", "&H123456789", "--1", "1 2", "1,5"}) {
        EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
    }
    EXPECT_EQ(ParseNumber(" +2.5 "), 2.5);
    EXPECT_EQ(ParseNumber("-.5e1"), -5.0);
    EXPECT_EQ(ParseNumber("&HFFFF"), -1.0);
    EXPECT_EQ(ParseNumber("&h80000012"), -2147483630.0);
    EXPECT_EQ(ParseInteger<std::int16_t>("32767.4"), 32767);
    EXPECT_EQ(ParseInteger<std::int16_t>("32767.5"), std::nullopt);
    EXPECT_EQ(ParseInteger<std::int16_t>("-32769"), std::nullopt);
    EXPECT_EQ(ParseInteger<std::int16_t>("2.5"), 2);
    EXPECT_EQ(ParseInteger<std::int32_t>("2147483648"), std::nullopt);
    EXPECT_EQ(FormatNumber(20) + FormatNumber(-0.0) + FormatNumber(0.1 + 0.2), "2000.3");
}

} // namespace tavmoor
