#include "process.h"

#include "console.h"
#include "core/files/build_folder.h"
#include "core/files/document_path.h"

#include <atomic>
#include <cstdlib>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

namespace tavmoor::cli {

namespace {

std::atomic<bool> interrupted = false;

} // namespace

std::vector<std::string> CommandLineArguments(int /*count*/, char** /*values*/) {
    int count = 0;
    wchar_t** values = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; values != nullptr && i < count; ++i) {
        const std::u8string utf8 = std::filesystem::path(values[i]).u8string();
        arguments.emplace_back(utf8.begin(), utf8.end());
    }
    LocalFree(values);
    return arguments;
}

std::filesystem::path NativeArgument(const std::string& utf8) {
    return FromUtf8(utf8); // the two forms are one here
}

void PrepareConsole() {
    static const UINT before = GetConsoleOutputCP(); // the console outlives this program
    SetConsoleOutputCP(CP_UTF8);
    std::atexit([] { SetConsoleOutputCP(before); });
}

void CatchInterrupts() {
    SetConsoleCtrlHandler(
        [](DWORD event) -> BOOL {
            constexpr DWORD longEnoughToClearUp = 5000; // ms; the system grants about as much
            interrupted = true;
            if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) {
                Sleep(longEnoughToClearUp); // it ends the process when this returns
            }
            return TRUE;
        },
        TRUE);
}

bool IsInterrupted() {
    return interrupted;
}

bool OutputIsTerminal() {
    return _isatty(_fileno(stdout)) != 0;
}

void StartAutorunProgram(const std::filesystem::path& program) {
    std::wstring command = L"\"" + program.wstring() + L"\"";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                       program.parent_path().c_str(), &start, &process) == 0) {
        throw CommandFailure("the autorun was built but not started: error " +
                             std::to_string(GetLastError()));
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

std::filesystem::path MakePrivateTemporaryFolder() {
    const std::filesystem::path folder =
        NativePath(TemporaryPath()) / ("TAVMOORbuild-" + std::to_string(GetCurrentProcessId()) +
                                       "-" + std::to_string(GetTickCount64()));
    std::error_code error;
    if (!std::filesystem::create_directory(folder, error)) {
        throw CommandFailure("no folder for working files can be made: " + error.message());
    }
    return folder;
}

} // namespace tavmoor::cli
