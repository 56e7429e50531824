#include "core/text/path_text.h"

namespace tavmoor {

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

std::string_view FileNameOf(std::string_view path) {
    const std::size_t end = path.rfind('\\');
    return end == std::string_view::npos ? path : path.substr(end + 1);
}

std::string RelativeToCdFolder(std::string_view path, std::string_view cdFolder) {
    return path.size() > cdFolder.size() ? std::string(path.substr(cdFolder.size()))
                                         : std::string();
}

std::string ExpandProgramFolder(std::string_view path, std::string_view programFolder) {
    if (path.empty() || path.front() != '%') {
        return std::string(path);
    }
    std::string expanded(programFolder);
    if (path.back() != '\\') {
        expanded += '\\';
    }
    return expanded.append(path.substr(1));
}

} // namespace tavmoor
