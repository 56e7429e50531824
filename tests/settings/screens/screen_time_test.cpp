#include "settings/screens/screen_time.h"

#include <gtest/gtest.h>

namespace tavmoor {

TEST(ScreenTime, KeepsWholeSecondsUpToTheLimit) {
    struct Case {
        const char *typed, *kept;
        bool outOfRange;
    };
    for (const Case& c : {Case{"60", "60", false}, Case{"7.9", "7", false}, Case{"1", "1", false},
                          Case{" 12 ", "12", false}, Case{"0.5", "0", false}, Case{"61", "5", true},
                          Case{"60.1", "5", true}, Case{"0", "5", true}, Case{"-3", "5", true},
                          Case{"abc", "5", false}, Case{"", "5", false}, Case{"7s", "5", false}}) {
        const ScreenTime time = CheckScreenTime(c.typed);
        EXPECT_EQ(time.text, c.kept) << c.typed;
        EXPECT_EQ(time.outOfRange, c.outOfRange) << c.typed;
    }
}

} // namespace tavmoor
