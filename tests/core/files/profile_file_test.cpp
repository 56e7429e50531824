#include "core/files/profile_file.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tavmoor {

TEST(ProfileFile, TakesTheFirstOfTwoEntriesWhateverTheCase) {
    const ProfileFile file("[Uvod]\r\nFont=a\nFONT=b\r\n[Izlaz]\r\nFont=c\r\n[uvod]\r\nfont=d\r\n"
                           "Slika=e");
    EXPECT_EQ(file.Value("UVOD", "fOnT"), "a");
    EXPECT_EQ(file.Value("Izlaz", "Font"), "c");
    EXPECT_EQ(file.Value("Uvod", "Slika"), "e"); // the last line needs no end
    EXPECT_EQ(file.Value("Uvod", "Fon"), "");
    EXPECT_EQ(file.Value("", "Font"), "");
    ProfileFile::Section section = file.In("uvod");
    for (const auto& [key, value] : {std::pair("Font", "a"),
                                     {"Slika", "e"},
                                     {"font", "a"},
                                     {"Font", "a"},
                                     {"FONT", "a"},
                                     {"none", ""},
                                     {"Slika", "e"}}) {
        EXPECT_EQ(section.Value(key), value) << key;
    }
}

TEST(ProfileFile, StripsNothingButLineEnds) {
    const ProfileFile file("[S]\r\n key = value \r\nquoted=\"x\"\r\nequal=a=b\r\n=no key\r\n"
                           "return=a\rb\r\nempty=\r\n");
    const std::pair<const char*, const char*> cases[] = {
        {" key ", " value "}, {"key", ""},        {"quoted", "\"x\""}, {"equal", "a=b"},
        {"", "no key"},       {"return", "a\rb"}, {"empty", ""}};
    for (const auto& [key, value] : cases) {
        EXPECT_EQ(file.Value("S", key), value);
    }
}

TEST(ProfileFile, CutsAValueBehind1023Characters) {
    const std::string longest(1023, 'x');
    const ProfileFile file("[S]\r\nfits=" + longest + "\r\nlong=" + longest + "yz\r\n");
    EXPECT_EQ(file.Value("S", "fits"), longest);
    EXPECT_EQ(file.Value("S", "long"), longest);
}

TEST(ProfileFile, ReadsAnyBytesAndMissingFiles) {
    using namespace std::string_literals;
    const ProfileFile file("\xFF[S]\n[open\nk=1\n]=2\n[a][b]\nk\0=3\nk=\x80\0z\n\n\r\n="s);
    EXPECT_EQ(file.Value("", "k"), "1"); // no section line came before it
    EXPECT_EQ(file.Value("a", "k"), std::string_view("\x80\0z", 3));
    EXPECT_EQ(file.Value("a", std::string_view("k\0", 2)), "3");
    const test::TemporaryFolder folder;
    EXPECT_EQ(ReadProfileValue(folder.Write("a.ini", "[S]\r\nK=v\r\n"), "s", "k"), "v");
    EXPECT_EQ(ReadProfileValue(folder.Document("gone.ini"), "S", "K"), "");
    EXPECT_EQ(ReadProfileValue(folder.Document(), "S", "K"), "");
    EXPECT_EQ(ReadProfileValue("", "S", "K"), "");
}

} // namespace tavmoor
