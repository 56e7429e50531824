#include "core/text/code_page.h"

#include <gtest/gtest.h>

#include <set>

namespace tavmoor {

TEST(CodePage, GivesEachByteACharacterOfItsOwn) {
    for (const int number : {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258}) {
        const CodePage page(number);
        EXPECT_EQ(page.Number(), number);
        std::set<char32_t> characters;
        std::string bytes;
        for (int byte = 0; byte < 256; ++byte) {
            characters.insert(page.ToUnicode(static_cast<unsigned char>(byte)));
            bytes += static_cast<char>(byte);
        }
        EXPECT_EQ(characters.size(), 256U) << number;
        const CodePageText back = page.FromUtf8(page.ToUtf8(bytes));
        EXPECT_EQ(back.bytes, bytes) << number;
        EXPECT_TRUE(back.unplaced.empty()) << number;
    }
}

TEST(CodePage, CharactersStandWhereTheSystemHasThem) {
    EXPECT_EQ(CodePage(1252).ToUtf8("A\x80\xE9"), "A\u20AC\u00E9");
    EXPECT_EQ(CodePage(1250).ToUtf8("\x8A\x9A\xE8"), "\u0160\u0161\u010D");
    EXPECT_EQ(CodePage(1251).ToUtf8("\xC0\xFF"), "\u0410\u044F");
    EXPECT_EQ(CodePage(1258).ToUtf8("\xC2\xCC"), "\u00C2\u0300");
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
    EXPECT_EQ(CodePage(1252).FromUtf8("\xC0\xAF\xED\xA0\x80").bytes, "?????") << "no UTF-8";
}

TEST(CodePage, FollowsTheLanguageOfTheLocale) {
    const std::pair<const char*, int> cases[] = {{"", 1252},
                                                 {"C", 1252},
                                                 {"en_US.UTF-8", 1252},
                                                 {"de_DE@euro", 1252},
                                                 {"hr_HR.UTF-8", 1250},
                                                 {"sr_RS@latin", 1250},
                                                 {"sr_RS", 1251},
                                                 {"ru_RU.KOI8-R", 1251},
                                                 {"el", 1253},
                                                 {"tr-TR", 1254},
                                                 {"he_IL", 1255},
                                                 {"ar", 1256},
                                                 {"lt_LT", 1257},
                                                 {"vi_VN", 1258},
                                                 {"th_TH", 874},
                                                 {"e", 1252}};
    for (const auto& [locale, number] : cases) {
        EXPECT_EQ(CodePageOfLocale(locale), number) << locale;
    }
}

} // namespace tavmoor
