#pragma once

#include "core/document/project_document.h"
#include "menu/geometry.h"
#include "menu/menu_font.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tavmoor {

// What the menu window shows, drawn from the runtime configuration and freed of its storage forms.
// Texts are UTF-8 with LF as line break; colours are still those of the project.

enum class CommandKind : std::uint8_t { OpenFile, RunProgram, VisitPage, SendMail, Sound, Exit };

/// The groups in which a look may gather the commands, in their order.
enum class MenuGroup : std::uint8_t { Main, Info, Additional, Program };
inline constexpr std::size_t MenuGroups = 4;

struct MenuText {
    std::string text;
    MenuFont font;
    ColorValue color = 0;
};

struct Description {
    std::string title;
    std::string text;

    [[nodiscard]] bool Empty() const noexcept { return title.empty() && text.empty(); }
};

struct MenuCommand {
    CommandKind kind = CommandKind::OpenFile;
    MenuGroup group = MenuGroup::Main;
    std::string caption; ///< may be blank on purpose
    std::string target;
    std::string parameter;
    Description description;
    bool closes = false;
    bool stopsSound = false; ///< the background sound
};

struct MenuModel {
    std::string windowTitle;
    Extent windowSize; ///< outer size, pixels at 96 dpi; 0 for a side that is not given
    bool maximized = false;

    ColorValue windowColor = 0;
    std::string backgroundPicture; ///< name in the package
    std::string logoPicture;       ///< name in the package

    MenuText title;
    MenuText logo;
    MenuText descriptionTitle; ///< shown while no command is pointed at
    MenuText description;      ///< the same
    /// Back colour of the description; nothing when it is transparent.
    std::optional<ColorValue> descriptionColor;

    MenuFont buttonFont;
    std::optional<ColorValue> buttonTextColor;
    std::optional<ColorValue> buttonFaceColor;
    std::optional<ColorValue> buttonShadowColor;

    std::array<std::string, MenuGroups> groupTitles;
    /// The exit command is the last one; the one of the sound, if there is a sound, comes before
    /// it.
    std::vector<MenuCommand> commands;

    /// What is told while the pointer is on a command, or on none; a command without a description
    /// leaves the main one standing.
    [[nodiscard]] Description DescriptionOf(std::optional<std::size_t> command) const;
    /// True when anything is ever told.
    [[nodiscard]] bool HasDescriptions() const;
};

/// Where a project was designed: in the settings windows alone, or on the canvas as well. What the
/// canvas has left in a project that is now for a simple template does not count.
enum class DesignedIn : std::uint8_t { Settings, Canvas };

/// The title that the windows of a project have in the task bar, on one line.
std::string WindowTitle(const ProjectDocument& document);

/// The menu of a project that was read from a runtime configuration.
MenuModel MakeMenuModel(const ProjectDocument& document, DesignedIn place);

/// Sorts the commands by group; within a group they keep their order.
void GatherGroups(MenuModel& model);

} // namespace tavmoor
