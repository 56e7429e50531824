#include "core/files/document_path.h"

#include "core/files/document_path_platform.h"
#include "core/files/runtime_error.h"
#include "core/text/code_page.h"

#include <algorithm>

namespace tavmoor {

std::filesystem::path NativePath(std::string_view documentPath) {
    if (documentPath.find('\0') != std::string_view::npos) {
        throw RuntimeError(ErrorNumber::BadFileName, documentPath);
    }
    return PlatformNativePath(documentPath);
}

std::string DocumentPath(const std::filesystem::path& nativePath) {
    const std::string native = PlatformPathText(nativePath);
    const std::string_view root = PlatformRootDrive();
    CodePageText text = SystemCodePage().FromUtf8(native);
    // Where there are no drives, a backslash is part of a name.
    const bool backslash = !root.empty() && native.find('\\') != std::string::npos;
    if (!text.unplaced.empty() || backslash) {
        throw RuntimeError(ErrorNumber::BadFileName, text.bytes);
    }
    std::replace(text.bytes.begin(), text.bytes.end(), '/', '\\');
    if (text.bytes.starts_with('\\')) {
        text.bytes.insert(0, root);
    }
    return text.bytes;
}

bool SamePath(std::string_view a, std::string_view b) {
    return PlatformEqualWithoutCase(SystemCodePage().ToUtf8(a), SystemCodePage().ToUtf8(b));
}

std::optional<std::filesystem::path> FindNativePath(std::string_view documentPath) {
    try {
        return NativePath(documentPath);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

std::optional<std::string> FindDocumentPath(const std::filesystem::path& nativePath) {
    try {
        return DocumentPath(nativePath);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

bool IsAbsoluteDocumentPath(std::string_view path) {
    const bool drive = path.size() >= 2 && path[1] == ':';
    return drive || (!path.empty() && path.front() == '\\');
}

std::string WithBackslash(std::string_view folder) {
    std::string result(folder);
    if (result.empty() || result.back() != '\\') {
        result += '\\';
    }
    return result;
}

std::string_view FolderOf(std::string_view path) {
    const std::size_t end = path.rfind('\\');
    return end == std::string_view::npos ? std::string_view() : path.substr(0, end);
}

} // namespace tavmoor
