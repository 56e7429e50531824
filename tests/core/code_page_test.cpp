#include "core/code_page.h"

#include <gtest/gtest.h>

#include <set>

namespace tavmoor {

class EveryCodePage : public testing::TestWithParam<int> {};

TEST_P(EveryCodePage, GivesEachByteACharacterOfItsOwn) {
    const CodePage page(GetParam());
    ASSERT_EQ(page.Number(), GetParam());
    std::set<char32_t> characters;
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        characters.insert(page.ToUnicode(static_cast<unsigned char>(byte)));
        bytes += static_cast<char>(byte);
    }
    EXPECT_EQ(characters.size(), 256U);
    const CodePageText back = page.FromUtf8(page.ToUtf8(bytes));
    EXPECT_EQ(back.bytes, bytes);
    EXPECT_TRUE(back.unplaced.empty());
    EXPECT_EQ(page.ToUtf8("Az 09~\r\n"), "Az 09~\r\n");
}

INSTANTIATE_TEST_SUITE_P(CodePage, EveryCodePage,
                         testing::Values(874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257,
                                         1258));

TEST(CodePage, CharactersStandWhereWindowsHasThem) {
    EXPECT_EQ(CodePage(1252).ToUtf8("\x80\xE9"), "\u20AC\u00E9");
    EXPECT_EQ(CodePage(1250).ToUtf8("\x8A\x9A\xE8"), "\u0160\u0161\u010D");
    EXPECT_EQ(CodePage(1251).ToUtf8("\xC0\xFF"), "\u0410\u044F");
    EXPECT_EQ(CodePage(1258).ToUtf8("a\xCC"), "a\u0300");
    EXPECT_EQ(CodePage(437).Number(), 1252);
    EXPECT_EQ(CodePage(65001).Number(), 1252);
}

TEST(CodePage, TellsEachCharacterWithoutAPlace) {
    const CodePageText text = CodePage(1252).FromUtf8("a\u0160\u0107\xF0\x9F\x98\x80z\xC3");
    EXPECT_EQ(text.bytes, "a\x8A??z?");
    ASSERT_EQ(text.unplaced.size(), 3U);
    EXPECT_EQ(text.unplaced[0].position, 3U);
    EXPECT_EQ(text.unplaced[0].character, U'\u0107');
    EXPECT_EQ(text.unplaced[1].character, U'\U0001F600');
    EXPECT_EQ(text.unplaced[2].character, U'\uFFFD');
    // Overlong forms and surrogates are no UTF-8.
    EXPECT_EQ(CodePage(1252).FromUtf8("\xC0\xAF").bytes, "??");
    EXPECT_EQ(CodePage(1252).FromUtf8("\xED\xA0\x80").unplaced.size(), 3U);
}

TEST(CodePage, FollowsTheLanguageOfTheLocale) {
    const std::pair<const char*, int> cases[] = {
        {"", 1252},           {"C", 1252},           {"en_US.UTF-8", 1252}, {"de_DE@euro", 1252},
        {"hr_HR.UTF-8", 1250}, {"sr_RS@latin", 1250}, {"sr_RS", 1251},       {"ru_RU.KOI8-R", 1251},
        {"el", 1253},         {"tr-TR", 1254},       {"he_IL", 1255},       {"ar", 1256},
        {"lt_LT", 1257},      {"vi_VN", 1258},       {"th_TH", 874},        {"e", 1252},
    };
    for (const auto& [locale, number] : cases) {
        EXPECT_EQ(CodePageOfLocale(locale), number) << locale;
    }
}

} // namespace tavmoor
