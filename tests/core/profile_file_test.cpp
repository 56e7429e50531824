#include "core/profile_file.h"

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
    EXPECT_EQ(file.Entries().size(), 5U);
}

TEST(ProfileFile, StripsNothingButLineEnds) {
    const ProfileFile file("[S]\r\n key = value \r\nquoted=\"x\"\r\nequal=a=b\r\n;note=1\r\n=no key"
                           "\r\nreturn=a\rb\r\nempty=\r\ntab=\t");
    EXPECT_EQ(file.Value("S", " key "), " value ");
    EXPECT_EQ(file.Value("S", "key"), "");
    EXPECT_EQ(file.Value("S", "quoted"), "\"x\"");
    EXPECT_EQ(file.Value("S", "equal"), "a=b");
    EXPECT_EQ(file.Value("S", ""), "no key");
    EXPECT_EQ(file.Value("S", "return"), "a\rb");
    EXPECT_EQ(file.Value("S", "empty"), "");
    EXPECT_EQ(file.Value("S", "tab"), "\t");
}

TEST(ProfileFile, CutsAValueBehind1023Characters) {
    const std::string longest(1023, 'x');
    const ProfileFile file("[S]\r\nfits=" + longest + "\r\nlong=" + longest + "yz\r\n");
    EXPECT_EQ(file.Value("S", "fits"), longest);
    EXPECT_EQ(file.Value("S", "long"), longest);
    EXPECT_EQ(file.WholeValue("S", "long"), longest + "yz");
}

TEST(ProfileFile, ReadsAnyBytesAndMissingFiles) {
    const std::string bytes("\xFF\xFE[S]\n[open\nk=1\n]=2\n[a][b]\nk\0=3\nk=\x80\xC4\0z\n\n\r\n=", 46);
    const ProfileFile file(bytes);
    EXPECT_EQ(file.Value("", "k"), "1"); // no section line came before it
    EXPECT_EQ(file.Value("a", "k"), std::string_view("\x80\xC4\0z", 4));
    EXPECT_EQ(file.Value("a", std::string_view("k\0", 2)), "3");
    EXPECT_TRUE(ProfileFile("").Entries().empty());
    const test::TemporaryFolder folder;
    EXPECT_TRUE(ProfileFile::Load(folder.Document("gone.ini")).Entries().empty());
    EXPECT_TRUE(ProfileFile::Load(folder.Document()).Entries().empty());
    EXPECT_EQ(ReadProfileValue(folder.Write("a.ini", "[S]\r\nK=v\r\n"), "s", "k"), "v");
}

TEST(ProfileFile, FindsEachOfManyEntries) {
    std::string text;
    for (int i = 0; i < 3000; ++i) {
        text += "[s" + std::to_string(i % 7) + "]\n" + "key" + std::to_string(i) + "=" +
                std::to_string(i) + "\n";
    }
    const ProfileFile file(text);
    for (int i = 0; i < 3000; ++i) {
        const std::string number = std::to_string(i);
        ASSERT_EQ(file.Value("S" + std::to_string(i % 7), "KEY" + number), number);
        ASSERT_EQ(file.Value("S" + std::to_string((i + 1) % 7), "KEY" + number), "");
    }
}

} // namespace tavmoor
