#include "core/recovery_file.h"

#include "core/document_path.h"
#include "core/file_store.h"
#include "core/program_folder.h"
#include "core/project_writer.h"
#include "core/runtime_error.h"

#include <optional>

namespace tavmoor {

namespace {

constexpr std::string_view Ending = ".recovered.tavp";

/// A path at which nothing lies yet: an older recovery file may hold the only copy of some work.
std::string FreePath(const std::string& start) {
    std::string path = start + std::string(Ending);
    for (int number = 2; FileExists(path); ++number) {
        path = start + "-" + std::to_string(number) + std::string(Ending);
    }
    return path;
}

std::string UnsavedStart() {
    const std::string folder = UserDataFolder();
    std::error_code error;
    std::filesystem::create_directories(NativePath(folder), error);
    if (error) {
        throw FileError(error, folder);
    }
    return WithBackslash(folder) + "unsaved";
}

std::string WriteAt(const std::string& start, const ProjectDocument& document) {
    std::string path = FreePath(start);
    WriteProject(document, path);
    return path;
}

/// Nothing where the project's folder cannot be written, which may be the very error that ends the
/// program.
std::optional<std::string> WriteBesideProject(const ProjectDocument& document) {
    std::string start = document.Working.ProjectPath;
    if (start.ends_with(".tavp")) {
        start.resize(start.size() - 5);
    }
    try {
        return start.empty() ? std::nullopt : std::optional(WriteAt(start, document));
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

} // namespace

std::string WriteRecoveryFile(const ProjectDocument& document) {
    const auto path = WriteBesideProject(document);
    return path ? *path : WriteAt(UnsavedStart(), document);
}

} // namespace tavmoor
