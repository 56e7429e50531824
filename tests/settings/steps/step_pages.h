#pragma once

#include "support/control.h"

namespace tavmoor {

/// The step of the folder, the template, the background and the icon.
struct MainSettingsPage : test::Page {
    using Page::Page;
    test::Control folder = At("Text23"), browseFolder = At("Command32");
    test::Control templateName = At("Label89"), templatePath = At("Label27");
    test::Control picture = At("Label11"), browsePicture = At("Command1");
    test::Control removePicture = At("Command51");
    test::Control color = At("Label19"), chooseColor = At("Command2");
    test::Control icon = At("Label35"), browseIcon = At("Command17"), removeIcon = At("Command52");
    test::Control iconImage = At("Image1"), expiry = At("Command60");
};

/// The step of the autorun's texts and their looks.
struct AutorunInfoPage : test::Page {
    using Page::Page;
    test::Control taskBarTitle = At("Text1"), transparent = At("Check16");
    test::Control logo = At("Text2"), logoFont = At("Command13");
    test::Control logoStyle = At("Label23"), logoEffects = At("Label25");
    test::Control picture = At("Label16"), browsePicture = At("Command12");
    test::Control removePicture = At("Command55");
    test::Control title = At("Text3"), titleFont = At("Command47"), titleFontName = At("Label6");
    test::Control heading = At("Text4"), headingColor = At("Text4Color");
    test::Control headingFont = At("Command48");
    test::Control description = At("Text5"), descriptionFont = At("Command49");
    test::Control vertical = At("Text31"), verticalColor = At("Text31Color");
    test::Control verticalFont = At("Command25"), verticalFontName = At("Label77");
    test::Control verticalFontSize = At("Label86");
};

/// The sound step.
struct SoundPage : test::Page {
    using Page::Page;
    test::Control music = At("Label34"), browseMusic = At("Command14"), hear = At("Command15");
    test::Control stop = At("Command16"), removeMusic = At("Command45");
    test::Control atStart = At("Option1"), onDemand = At("Option2"), caption = At("Text10");
    test::Control repeat = At("HScroll1"), repeatText = At("Label31");
    test::Control pause = At("HScroll2"), pauseText = At("Label33");
    test::Control clickSound = At("Label78"), clicks = At("Check15");
    test::Control stopClick = At("Command35"), removeClick = At("Command46");
};

} // namespace tavmoor
