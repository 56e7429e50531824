#pragma once

#include "support/control.h"

namespace tavmoor {

/// The step of the fixed commands. Its six rows are alike; these are those that tests use.
struct CommandsPage : test::Page {
    using Page::Page;
    test::Control folder = At("Label68"), firstTitle = At("Text24"), firstTarget = At("Text11");
    test::Control firstType = At("Combo6");
    test::Control secondTitle = At("Text25"), secondTarget = At("Text13");
    test::Control secondParameter = At("Text14"), secondType = At("Combo1");
    test::Control secondCloses = At("Check10"), clearSecond = At("Command37");
    test::Control lastTitle = At("Text29"), browseLast = At("Command30");
    test::Control clearLast = At("Command41");
    test::Control more = At("Command56"), descriptions = At("Command42");
    test::Control menuTitles = At("Command57"), menuTitlesNote = At("Label22");
};

/// The window with the descriptions of the fixed commands and their look.
struct CommandDescriptionsPage : test::Page {
    using Page::Page;
    test::Control firstCommand = At("Label93"), secondCommand = At("Label1");
    test::Control lastCommand = At("Label5"), firstTitle = At("Text30"), fifthText = At("Text1");
    test::Control lastTitle = At("Text7"), lastText = At("Text2");
    test::Control textColor = At("Command2"), backColor = At("Command3"), font = At("Command4");
    test::Control sample = At("Label11"), close = At("Command43");
};

} // namespace tavmoor
