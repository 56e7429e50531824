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

std::string ShownPath(const std::filesystem::path& nativePath) {
    if (auto path = FindDocumentPath(nativePath)) {
        return *path;
    }
    try {
        const std::u8string name = nativePath.filename().u8string();
        return SystemCodePage()
            .FromUtf8({reinterpret_cast<const char*>(name.data()), name.size()})
            .bytes;
    } catch (const std::system_error&) {
        return "?"; // half a pair of UTF-16
    }
}

} // namespace tavmoor
