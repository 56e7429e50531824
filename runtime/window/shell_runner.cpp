#include "window/shell_runner.h"

#include "window/wide_text.h"

#include <windows.h>

#include <shellapi.h>

namespace tavmoor {

StartResult ShellRunner::Start(const StartRequest& request, std::string& reason) {
    const std::wstring file = Wide(request.file);
    const std::wstring parameters = Wide(request.parameters);
    const std::wstring folder = Wide(request.folder);
    SHELLEXECUTEINFOW execute{};
    execute.cbSize = sizeof(execute);
    execute.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
    execute.lpFile = file.c_str();
    execute.lpParameters = parameters.empty() ? nullptr : parameters.c_str();
    execute.lpDirectory = folder.empty() ? nullptr : folder.c_str();
    execute.nShow = SW_SHOWNORMAL;
    if (ShellExecuteExW(&execute) != FALSE) {
        return StartResult::Started;
    }
    const DWORD error = GetLastError();
    if (error == ERROR_CANCELLED) {
        return StartResult::Cancelled;
    }
    reason = SystemErrorText(error);
    if (const std::size_t place = reason.find("%1"); place != std::string::npos) {
        reason.replace(place, 2, request.file);
    }
    return StartResult::Failed;
}

} // namespace tavmoor
