#include "core/files/system_folders.h"
#include "looks/looks.h"
#include "window/menu_window.h"
#include "window/package_fonts.h"
#include "window/screen_window.h"
#include "window/shell_runner.h"
#include "window/wide_text.h"

#include <windows.h>

#include <exception>
#include <string>

#include <objbase.h>

namespace {

using tavmoor::WindowEnd;

constexpr int Failed = 1;

/// The system libraries that the menu works with, for as long as it runs.
class SystemLibraries {
public:
    SystemLibraries() {
        // A disc that is taken out must not raise the system's own message boxes.
        SetErrorMode(SEM_FAILCRITICALERRORS);
        com_ = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE);
        const Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&pictures_, &input, nullptr);
    }
    SystemLibraries(const SystemLibraries&) = delete;
    SystemLibraries& operator=(const SystemLibraries&) = delete;
    ~SystemLibraries() {
        Gdiplus::GdiplusShutdown(pictures_);
        if (SUCCEEDED(com_)) {
            CoUninitialize();
        }
    }

private:
    HRESULT com_ = S_OK;
    ULONG_PTR pictures_ = 0;
};

/// Splash screen, menu and exit screen, one after the other. Each is shown before the one in front
/// of it goes, so that no other program's window comes to the front in between.
int RunProgram(HINSTANCE instance, const std::filesystem::path& folder) {
    const SystemLibraries libraries;
    tavmoor::AutorunDisc disc(folder);
    const tavmoor::ProjectDocument& project = disc.Document();
    const tavmoor::PackageFonts fonts(disc);
    const tavmoor::Look look = tavmoor::TAVMOOR_LOOK();
    tavmoor::BackgroundPlayer sound(disc.PackagePath(), tavmoor::MakeBackgroundSound(project.Zvuk));
    tavmoor::ScreenWindow splash(disc, look, tavmoor::MakeScreenModel(project.Uvod));
    if (splash.Show(instance)) {
        sound.ProgramStarted();
        if (splash.Run() == WindowEnd::Program) {
            return 0;
        }
    }
    tavmoor::ShellRunner runner;
    tavmoor::MenuWindow menu(disc, look, runner, sound);
    if (!menu.Show(instance)) {
        return Failed;
    }
    sound.ProgramStarted();
    splash.Close();
    if (menu.Run() == WindowEnd::Program) {
        return 0;
    }
    tavmoor::ScreenWindow farewell(disc, look, tavmoor::MakeScreenModel(project.Izlaz));
    if (farewell.Show(instance)) {
        menu.Hide();
        farewell.Run();
    }
    return 0;
}

int Report(const std::wstring& title, const char* text) {
    MessageBoxW(nullptr, tavmoor::Wide(text).c_str(), title.c_str(),
                MB_OK | MB_ICONERROR | MB_SETFOREGROUND);
    return Failed;
}

} // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE /*previous*/, LPSTR /*commandLine*/,
                   int /*show*/) {
    std::wstring title = L"Autorun";
    try {
        const std::filesystem::path program = tavmoor::ProgramFile();
        if (program.has_stem()) {
            title = program.stem().wstring();
        }
        return RunProgram(instance, program.parent_path());
    } catch (const std::exception& error) {
        return Report(title, error.what());
    }
}
