#include "core/text/character_checks.h"

#include <gtest/gtest.h>

namespace tavmoor {

TEST(CharacterChecks, RefuseNamesThatOtherMachinesMayNotRead) {
    EXPECT_TRUE(IsValidName("") && IsValidName("My_disc-2"));
    for (const char* name : {"\xD1.jpg", "a,b", "a/b", "a&b", "a\tb", "a=b", "a;b", "a'b"}) {
        EXPECT_TRUE(FileNameObjection(name)) << name;
    }
    EXPECT_FALSE(IsValidName("my disc") || IsValidName("a.exe"));
    EXPECT_FALSE(IsValidName(std::string_view("a\0", 2)));
    for (const char* path :
         {"", "my file (1).jpg", "C:\\a-b_c!+@#.txt", "Z:\\\xE9,\\only the name"}) {
        EXPECT_EQ(FileNameObjection(path), std::nullopt) << path;
    }
    EXPECT_EQ(FileNameObjection("Z:\\pictures\\a,b.jpg"),
              "Incorrect filename format! \r\n"
              "Filename [a,b.jpg] must be changed to English filename.\r\n"
              "Available characters are:\r\n"
              "1234567890qwertyuiopasdfghjklzxcvbnmQWERTYUIOPASDFGHJKLZXCVBNM :\\().-_!+@#\r\n"
              "To make sure your autorun can properly work on any computer, "
              "please rename the file and select it again.");
}

} // namespace tavmoor
