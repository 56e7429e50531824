#pragma once

#include "support/control.h"

namespace tavmoor {

/// The main window around its panels, and its File menu.
struct MainWindowPage : test::Page {
    using Page::Page;
    test::Control fileMenu = At("Label24"), project = At("ProjectTitle"), help = At("Command9");
    test::Control mainSettings = At("Command7"), autorunInfo = At("Command3");
    test::Control build = At("Command6"), mainSettingsPanel = At("Frame2");
    test::Control soundPanel = At("Frame5"), chooseTemplate = At("Command11");
};

struct FileMenuPage : test::Page {
    using Page::Page;
    test::Control exit = At("Entry5"), programEntries = At("Frame2");
};

} // namespace tavmoor
