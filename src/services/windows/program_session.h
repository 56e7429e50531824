#pragma once

#include "core/document/project_document.h"
#include "core/document/project_reset.h"
#include "core/session/program_settings.h"
#include "core/session/recovery_folder.h"
#include "services/windows/menu_result.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tavmoor {

/// What one run of the program works on; every window has a reference to the one instance, which
/// lives as long as the main window. Texts and paths as in the core.
struct ProgramSession {
    std::string programFolder; ///< document form, no backslash at its end
    std::string settingsPath;  ///< of `tavmoor.ini`
    ProgramSettings settings;
    ProjectDocument document = NewProjectDocument();
    RecoveryCopy recovery{document};
    /// The copy of a project that a crash left, for the main window to offer; "" for none.
    std::string recoveredProject;

    /// Of the colour choice that was begun last.
    MenuAnswer menuAnswer;
    /// What the main window's menu was asked for, 0 for nothing; see MenuAction.
    std::int16_t menuAction = 0;
    /// The canvas was opened since the program started.
    bool VisualEditorOpened = false;
    /// The autorun status is still to be checked when the main window first comes up.
    bool autorunCheckDue = false;
};

/// What the settings file has for a compress folder that the user did not choose.
inline constexpr std::string_view DefaultCompressFolder = "default";

/// The folder in which a build works: the one chosen in the program settings, otherwise
/// BuildFolder.
std::string CompressFolder(const ProgramSettings& settings);

/// `programFolder`\`name`, with one backslash between them.
std::string InProgramFolder(const ProgramSession& session, std::string_view name);

} // namespace tavmoor
