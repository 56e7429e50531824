#include "core/files/document_path.h"

#include "core/files/runtime_error.h"

namespace tavmoor {

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
