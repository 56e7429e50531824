#pragma once

#include <array>
#include <cstdint>

namespace tavmoor {

/// What the entries of the main window's menus stand for.
enum class MenuAction : std::int16_t {
    None = 0,
    OpenProject = 1,
    NewProject = 2,
    SaveProject = 3,
    SaveProjectAs = 4,
    ExitProgram = 5,
    ProgramSettings = 6,
    Help = 7,
    About = 8,
    WebPage = 9,
    Mail = 10,
    Examples = 11,
};

/// The two drop-downs of the main window.
enum class MenuSide : std::uint8_t { File, Program };

struct MenuEntry {
    MenuAction action;
    MenuSide side;
    const char16_t* text; ///< with its indent of two blanks
    const char* artwork;
};

inline constexpr std::array MenuEntries{
    MenuEntry{MenuAction::OpenProject, MenuSide::File, u"  Open project", "open"},
    MenuEntry{MenuAction::NewProject, MenuSide::File, u"  New project", "new"},
    MenuEntry{MenuAction::SaveProject, MenuSide::File, u"  Save project", "save"},
    MenuEntry{MenuAction::SaveProjectAs, MenuSide::File, u"  Save project as", "save"},
    MenuEntry{MenuAction::ExitProgram, MenuSide::File, u"  Exit program", "close"},
    MenuEntry{MenuAction::ProgramSettings, MenuSide::Program, u"  Program settings",
              "nav_main_settings"},
    MenuEntry{MenuAction::Help, MenuSide::Program, u"  Help", "help"},
    MenuEntry{MenuAction::About, MenuSide::Program, u"  About the program", "about"},
    MenuEntry{MenuAction::WebPage, MenuSide::Program, u"  Web page", "web"},
    MenuEntry{MenuAction::Mail, MenuSide::Program, u"  E-mail", "mail"},
    MenuEntry{MenuAction::Examples, MenuSide::Program, u"  Autorun examples", "disc"},
};

} // namespace tavmoor
