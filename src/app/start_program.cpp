#include "start_program.h"

#include "core/build_folder.h"
#include "core/program_folder.h"
<<<<<<< HEAD
#include "services/autorun_check.h"
=======
#include "core/run_marker.h"
>>>>>>> w-build
#include "services/program_session.h"
#include "services/skinned_window.h"
#include "settings/settings_windows.h"

namespace tavmoor {

<<<<<<< HEAD
void StartProgram(ProgramContext context) {
=======
namespace {

/// Off Windows there is nothing that a check of the autorun status could mend.
#ifdef _WIN32
constexpr bool AutorunStatusMatters = true;
#else
constexpr bool AutorunStatusMatters = false;
#endif

} // namespace

void StartProgram(ProgramContext context, const RunMarker& marker) {
>>>>>>> w-build
    ProgramSession& session = context.session;
    EnsureBuildFolder();
    session.programFolder = ProgramFolder();
    session.settingsPath = ProgramSettingsPath(session.programFolder);
    session.settings = ReadProgramSettings(session.settingsPath);
    session.settings.buildFolder = BuildFolder();
    session.document.Working.Recent = session.settings.recentProject;
    session.autorunCheckDue = AutorunStatusMatters && session.settings.autoplayCheck;
    if (const auto since = marker.CrashedSince()) {
        session.recoveredProject = NewestRecoveryCopy(*since).value_or("");
    }
    RegisterSettingsWindows(context);
    const bool splash = session.settings.programSplash && context.windows.Stands(WindowName::Form5);
    context.windows.Open(splash ? WindowName::Form5 : WindowName::Form1);
}

} // namespace tavmoor
