#pragma once

#include "support/control.h"

namespace tavmoor {

/// The window of the program settings.
struct ProgramSettingsPage : test::Page {
    using Page::Page;
    test::Control previews = At("Check1"), splash = At("Check2"), testsAfter = At("Check3");
    test::Control checksAutorun = At("Check4"), checkNow = At("Command4");
    test::Control usualFolder = At("Option1"), chosenFolder = At("Option2");
    test::Control folder = At("Text1"), browseFolder = At("Command3");
    test::Control cancel = At("Command1"), store = At("Command2");
};

/// The window of the autorun check.
struct AutorunCheckPage : test::Page {
    using Page::Page;
    test::Control always = At("Check1"), leave = At("Command1"), check = At("Command2");
};

struct AboutPage : test::Page {
    using Page::Page;
    test::Control contact = At("Label2"), update = At("Command1"), web = At("Command2");
    test::Control mail = At("Command3");
};

} // namespace tavmoor
