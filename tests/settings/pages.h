#pragma once

#include "support/control.h"

namespace tavmoor::test {

/// The main window around its panels, and its File menu.
struct MainWindowPage : Page {
    using Page::Page;
    Control fileMenu = At("Label24"), project = At("ProjectTitle"), help = At("Command9");
    Control mainSettings = At("Command7"), autorunInfo = At("Command3"), build = At("Command6");
    Control mainSettingsPanel = At("Frame2"), soundPanel = At("Frame5");
    Control chooseTemplate = At("Command11");
};

struct FileMenuPage : Page {
    using Page::Page;
    Control exit = At("Entry5"), programEntries = At("Frame2");
};

/// The step of the folder, the template, the background and the icon.
struct MainSettingsPage : Page {
    using Page::Page;
    Control folder = At("Text23"), browseFolder = At("Command32"), templateName = At("Label89");
    Control templatePath = At("Label27"), picture = At("Label11"), browsePicture = At("Command1");
    Control removePicture = At("Command51"), color = At("Label19"), chooseColor = At("Command2");
    Control icon = At("Label35"), browseIcon = At("Command17"), removeIcon = At("Command52");
    Control iconImage = At("Image1"), expiry = At("Command60");
};

/// The step of the autorun's texts and their looks.
struct AutorunInfoPage : Page {
    using Page::Page;
    Control taskBarTitle = At("Text1"), transparent = At("Check16"), logo = At("Text2");
    Control logoFont = At("Command13"), logoStyle = At("Label23"), logoEffects = At("Label25");
    Control picture = At("Label16"), browsePicture = At("Command12");
    Control removePicture = At("Command55"), title = At("Text3"), titleFont = At("Command47");
    Control titleFontName = At("Label6"), heading = At("Text4"), headingColor = At("Text4Color");
    Control headingFont = At("Command48"), description = At("Text5");
    Control descriptionFont = At("Command49"), vertical = At("Text31");
    Control verticalColor = At("Text31Color"), verticalFont = At("Command25");
    Control verticalFontName = At("Label77"), verticalFontSize = At("Label86");
};

/// The sound step.
struct SoundPage : Page {
    using Page::Page;
    Control music = At("Label34"), browseMusic = At("Command14"), hear = At("Command15");
    Control stop = At("Command16"), removeMusic = At("Command45"), atStart = At("Option1");
    Control onDemand = At("Option2"), caption = At("Text10"), repeat = At("HScroll1");
    Control repeatText = At("Label31"), pause = At("HScroll2"), pauseText = At("Label33");
    Control clickSound = At("Label78"), clicks = At("Check15"), stopClick = At("Command35");
    Control removeClick = At("Command46");
};

/// The step of the fixed commands. Its six rows are alike; these are those that tests use.
struct CommandsPage : Page {
    using Page::Page;
    Control folder = At("Label68"), firstTitle = At("Text24"), firstTarget = At("Text11");
    Control firstType = At("Combo6"), secondTitle = At("Text25"), secondTarget = At("Text13");
    Control secondParameter = At("Text14"), secondType = At("Combo1"), secondCloses = At("Check10");
    Control clearSecond = At("Command37"), lastTitle = At("Text29"), browseLast = At("Command30");
    Control clearLast = At("Command41"), more = At("Command56"), descriptions = At("Command42");
    Control menuTitles = At("Command57"), menuTitlesNote = At("Label22");
};

/// The window with the descriptions of the fixed commands and their look.
struct CommandDescriptionsPage : Page {
    using Page::Page;
    Control firstCommand = At("Label93"), secondCommand = At("Label1"), lastCommand = At("Label5");
    Control firstTitle = At("Text30"), fifthText = At("Text1"), lastTitle = At("Text7");
    Control lastText = At("Text2"), textColor = At("Command2"), backColor = At("Command3");
    Control font = At("Command4"), sample = At("Label11"), close = At("Command43");
};

/// The splash step or the exit step, whose controls differ in their names alone.
class ScreenPage : public Page {
    bool exit_;
    [[nodiscard]] Control At(const char* splash, const char* exit) const {
        return Page::At(exit_ ? exit : splash);
    }

public:
    ScreenPage(QWidget& panel, bool exit) : Page(panel), exit_(exit) {}

    Control show = At("Check1", "Check4"), click = At("Check18", "Check17");
    Control time = At("Text7", "Text9"), unit = At("Label47", "Label55");
    Control text = At("Text6", "Text8"), underline = At("Check8", "Check7");
    Control chooseFont = At("Command20", "Command22"), font = At("Label61", "Label58");
    Control size = At("Label60", "Label59"), picture = At("Label38", "Label51");
    Control browse = At("Command18", "Command23"), remove = At("Command54", "Command53");
    Control both = At("Option3", "Option6"), second = At("Option4", "Option7");
    Control third = At("Option5", "Option8"), color = At("Frame11", "Label53");
    Control chooseColor = At("Command19", "Command24"), height = At("VScroll1", "VScroll2");
    Control heightText = At("Label42", "Label94"), width = At("HScroll3", "HScroll4");
    Control widthText = At("Label57", "Label92"), textPlace = At("Combo9", "Combo7");
    Control picturePlace = At("Combo10", "Combo8");
};

/// The window of the templates.
struct TemplatePage : Page {
    using Page::Page;
    Control editor = At("Option1"), simple = At("Option2"), names = At("List1");
    Control paths = At("List3"), picture = At("Picture1"), description = At("rt1");
    Control chrome = At("Image113"), ok = At("Command1"), cancel = At("Command2");
};

/// The window of the final step.
struct BuildPage : Page {
    using Page::Page;
    Control folder = At("Label2"), name = At("Text1"), startsAfter = At("Check1");
    Control build = At("Command1"), progress = At("Progress"), status = At("Label1");
    Control note = At("Note"), openFolder = At("OpenFolder");
};

/// The window of the program settings.
struct ProgramSettingsPage : Page {
    using Page::Page;
    Control previews = At("Check1"), splash = At("Check2"), testsAfter = At("Check3");
    Control checksAutorun = At("Check4"), checkNow = At("Command4"), usualFolder = At("Option1");
    Control chosenFolder = At("Option2"), folder = At("Text1"), browseFolder = At("Command3");
    Control cancel = At("Command1"), store = At("Command2");
};

/// The window of the autorun check.
struct AutorunCheckPage : Page {
    using Page::Page;
    Control always = At("Check1"), leave = At("Command1"), check = At("Command2");
};

struct AboutPage : Page {
    using Page::Page;
    Control contact = At("Label2"), update = At("Command1"), web = At("Command2");
    Control mail = At("Command3");
};

} // namespace tavmoor::test
