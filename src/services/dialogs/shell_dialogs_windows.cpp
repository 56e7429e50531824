#include "services/dialogs/shell_dialogs.h"

#include <windows.h>

#include <shellapi.h>
#include <shlobj.h>

namespace tavmoor {

namespace {

// These are exported by number and declared in no header of the compiler.
constexpr WORD RestartDialogOrdinal = 59;
constexpr WORD ExitDialogOrdinal = 60;
constexpr WORD RunDialogOrdinal = 61;

using RestartDialogFunction = int(WINAPI*)(HWND owner, PCWSTR prompt, DWORD flags);
using ExitDialogFunction = void(WINAPI*)(HWND owner);
using RunDialogFunction = int(WINAPI*)(HWND owner, HICON icon, PCWSTR folder, PCWSTR title,
                                       PCWSTR prompt, UINT flags);

/// A function of the shell by its number; null where this Windows lacks it.
template <typename Function>
Function ShellFunction(WORD ordinal) {
    const HMODULE shell = GetModuleHandleW(L"shell32.dll");
    if (shell == nullptr) {
        return nullptr;
    }
    // The number stands in place of the name's address.
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(shell, MAKEINTRESOURCEA(ordinal))));
}

const wchar_t* TextOrNull(const std::wstring& text) {
    return text.empty() ? nullptr : text.c_str();
}

bool ShowRestart(HWND owner, const ShellRequest& request) {
    const auto restart = ShellFunction<RestartDialogFunction>(RestartDialogOrdinal);
    if (restart != nullptr) {
        restart(owner, TextOrNull(request.prompt), request.flags);
    }
    return restart != nullptr;
}

bool ShowExit(HWND owner) {
    const auto exit = ShellFunction<ExitDialogFunction>(ExitDialogOrdinal);
    if (exit != nullptr) {
        exit(owner);
    }
    return exit != nullptr;
}

bool ShowRun(HWND owner, const ShellRequest& request) {
    const auto run = ShellFunction<RunDialogFunction>(RunDialogOrdinal);
    if (run != nullptr) {
        run(owner, nullptr, nullptr, TextOrNull(request.title), TextOrNull(request.prompt),
            request.flags);
    }
    return run != nullptr;
}

/// @return false for a path that names no drive
bool ShowFormat(HWND owner, const std::filesystem::path& path) {
    const std::wstring drive = path.root_name().wstring();
    if (drive.size() != 2 || drive[1] != L':') {
        return false;
    }
    const wchar_t letter = drive[0] & ~0x20; // upper case of a letter
    if (letter < L'A' || letter > L'Z') {
        return false;
    }
    SHFormatDrive(owner, static_cast<UINT>(letter - L'A'), SHFMT_ID_DEFAULT, 0);
    return true;
}

} // namespace

bool ShowShellDialog(const ShellRequest& request) {
    const auto owner = reinterpret_cast<HWND>(request.owner); // NOLINT(performance-no-int-to-ptr)
    switch (request.dialog) {
    case ShellDialog::Help:
        return WinHelpW(owner, request.path.c_str(), request.command,
                        reinterpret_cast<ULONG_PTR>(TextOrNull(request.key))) != 0;
    case ShellDialog::Format:
        return ShowFormat(owner, request.path);
    case ShellDialog::ObjectProperties:
        return SHObjectProperties(owner, SHOP_FILEPATH, request.path.c_str(), nullptr) != 0;
    case ShellDialog::Restart:
        return ShowRestart(owner, request);
    case ShellDialog::Run:
        return ShowRun(owner, request);
    case ShellDialog::ShutDown:
        return ShowExit(owner);
    case ShellDialog::FindFiles: {
        // A success is a number above 32 in the shape of a handle.
        const auto result = reinterpret_cast<INT_PTR>(
            ShellExecuteW(owner, L"find", request.path.c_str(), nullptr, nullptr, SW_SHOWNORMAL));
        return result > 32;
    }
    }
    return false;
}

} // namespace tavmoor
