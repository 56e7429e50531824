#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "services/system/shell_platform.h"
#include "services/values/wide_text_windows.h"

#include <array>
#include <windows.h>

#include <shellapi.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

/// The system's own words for an error, on one line.
std::string SystemMessage(DWORD error) {
    std::array<wchar_t, 512> text{};
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK,
        nullptr, error, 0, text.data(), static_cast<DWORD>(text.size()), nullptr);
    const std::wstring_view message(text.data(), length);
    const std::size_t last = message.find_last_not_of(L' ');
    return last == std::wstring_view::npos ? "error " + std::to_string(error)
                                           : NarrowText(message.substr(0, last + 1));
}

/// One argument of a command line, quoted as programs take command lines apart: backslashes are
/// doubled only before a quotation mark.
void AppendQuoted(std::wstring& line, const std::wstring& argument) {
    line += line.empty() ? L"\"" : L" \"";
    std::size_t backslashes = 0;
    for (const wchar_t character : argument) {
        if (character == L'\\') {
            ++backslashes;
            continue;
        }
        line.append(character == L'"' ? 2 * backslashes + 1 : backslashes, L'\\');
        line += character;
        backslashes = 0;
    }
    line.append(2 * backslashes, L'\\');
    line += L'"';
}

ShellOutcome Execute(std::string_view shown, const std::wstring& file,
                     const std::wstring& parameters = {}, const std::wstring& folder = {}) {
    SHELLEXECUTEINFOW request{};
    request.cbSize = sizeof request;
    request.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    request.lpVerb = L"open";
    request.lpFile = file.c_str();
    request.lpParameters = parameters.empty() ? nullptr : parameters.c_str();
    request.lpDirectory = folder.empty() ? nullptr : folder.c_str();
    request.nShow = SW_SHOWNORMAL;
    if (ShellExecuteExW(&request) == 0) {
        return {false, "\"" + std::string(shown) +
                           "\" cannot be opened: " + SystemMessage(GetLastError())};
    }
    return {};
}

class WindowsShell final : public Shell {
public:
    ShellOutcome OpenDocument(std::string_view path) override {
        if (!FileExists(path) && !FolderExists(path)) {
            return FileMissing(path);
        }
        return Execute(path, NativePath(path).wstring());
    }

    ShellOutcome OpenAddress(std::string_view address) override {
        return Execute(address, WideText(address));
    }

    ShellOutcome StartProgram(std::string_view path,
                              const std::vector<std::string>& arguments) override {
        if (!FileExists(path)) {
            return FileMissing(path);
        }
        std::wstring parameters;
        for (const std::string& argument : arguments) {
            AppendQuoted(parameters, WideText(argument));
        }
        const fs::path program = NativePath(path);
        return Execute(path, program.wstring(), parameters, program.parent_path().wstring());
    }

    ShellOutcome OpenHelpFile(std::string_view path) override { return OpenDocument(path); }
};

} // namespace

Shell& PlatformShell() {
    static WindowsShell shell;
    return shell;
}

} // namespace tavmoor
