#pragma once

#include "support/control.h"

namespace tavmoor {

/// The window of the final step.
struct BuildPage : test::Page {
    using Page::Page;
    test::Control folder = At("Label2"), name = At("Text1"), startsAfter = At("Check1");
    test::Control build = At("Command1"), progress = At("Progress");
    test::Control status = At("Label1"), note = At("Note");
};

} // namespace tavmoor
