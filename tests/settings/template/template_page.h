#pragma once

#include "support/control.h"

namespace tavmoor {

/// The window of the templates.
struct TemplatePage : test::Page {
    using Page::Page;
    test::Control editor = At("Option1"), simple = At("Option2");
    test::Control names = At("List1"), paths = At("List3");
    test::Control picture = At("Picture1"), description = At("rt1"), chrome = At("Image113");
    test::Control ok = At("Command1"), cancel = At("Command2");
};

} // namespace tavmoor
