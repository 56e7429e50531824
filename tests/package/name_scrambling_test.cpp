#include "package/name_scrambling.h"

#include "core/files/runtime_error.h"

#include <gtest/gtest.h>

namespace tavmoor {
namespace {

std::string AllPlainCharacters() {
    std::string text;
    for (int code = 0; code < 128; ++code) {
        text += static_cast<char>(code);
    }
    return text;
}

TEST(NameScrambling, GivesThreeHighBytesForEachCharacter) {
    const std::string scrambled = ScrambleText("a~");
    ASSERT_EQ(scrambled.size(), 6U);
    EXPECT_EQ(scrambled[0], '\xE1');
    EXPECT_EQ(scrambled[3], '\xFE');
    for (const char byte : scrambled) {
        EXPECT_GE(static_cast<unsigned char>(byte), 128U);
    }
    EXPECT_EQ(ScrambleText(""), "");
}

TEST(NameScrambling, ComesBack) {
    EXPECT_EQ(UnscrambleText(ScrambleText(AllPlainCharacters())), AllPlainCharacters());
    EXPECT_EQ(UnscrambleText(""), "");
}

TEST(NameScrambling, NoiseDiffersFromCallToCall) {
    const std::string text(50, 'x');
    const std::string first = ScrambleText(text);
    bool differs = false;
    for (int call = 0; call < 1000 && !differs; ++call) {
        differs = ScrambleText(text) != first;
    }
    EXPECT_TRUE(differs);
}

TEST(NameScrambling, RefusesCharactersBeyondSevenBits) {
    EXPECT_TRUE(CanBeScrambled(AllPlainCharacters()));
    for (const std::string text : {"\x80", "plain\xFF", "\xE8okolada.jpg"}) {
        EXPECT_FALSE(CanBeScrambled(text));
        try {
            ScrambleText(text);
            FAIL() << "no error";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number(), ErrorNumber::InvalidCall);
        }
    }
}

TEST(NameScrambling, UnscramblesOnlyWhatCanBeScrambled) {
    const std::string sound = ScrambleText("ab");
    EXPECT_EQ(UnscrambleText(sound.substr(0, 4)), std::nullopt);
    EXPECT_EQ(UnscrambleText(sound.substr(0, 5)), std::nullopt);
    for (std::size_t i = 0; i < sound.size(); ++i) {
        std::string damaged = sound;
        damaged[i] = '\x7F';
        EXPECT_EQ(UnscrambleText(damaged), std::nullopt) << "byte " << i;
    }
}

} // namespace
} // namespace tavmoor
