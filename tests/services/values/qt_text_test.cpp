#include "core/text/code_page.h"
#include "services/values/qt_text.h"

#include <gtest/gtest.h>

namespace tavmoor {

TEST(QtText, GoesThereAndBackAndRefusesWhatHasNoPlace) {
    SetSystemCodePage(1250);
    const std::string cacak = "\xC8"
                              "a"
                              "\xE8"
                              "ak \x9E";
    EXPECT_EQ(ToQString(cacak), QStringLiteral("Čačak ž"));
    EXPECT_EQ(FromQString(u"Čačak ž"), cacak);
    EXPECT_TRUE(FitsCodePage(u"Čačak"));
    EXPECT_FALSE(FitsCodePage(u"Ñ"));
    EXPECT_EQ(CodePageObjection(u"ok"), QString());
    EXPECT_EQ(CodePageObjection(u"a\u65E5"),
              QStringLiteral("\"日\" cannot be used: a disc's texts are stored in code page 1250, "
                             "which has no such character."));
    SetSystemCodePage(1252);
}

} // namespace tavmoor
