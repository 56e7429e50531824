#include "app/start_program.h"

#include "core/files/build_folder.h"
#include "core/files/program_folder.h"
#include "core/session/run_marker.h"
#include "services/system/autorun_check.h"
#include "services/windows/program_session.h"
#include "services/windows/skinned_window.h"
#include "settings/main/settings_window_list.h"

namespace tavmoor {

void StartProgram(ProgramContext context, const RunMarker& marker,
                  const std::function<std::string()>& programFolder) {
    ProgramSession& session = context.session;
    EnsureBuildFolder();
    session.programFolder = programFolder();
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
