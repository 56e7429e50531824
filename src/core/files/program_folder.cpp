#include "core/files/program_folder.h"

#include "core/files/document_path.h"

namespace tavmoor {

namespace {

constexpr const char* OwnFolder = "tavmoor";

} // namespace

std::string ProgramFolder() {
    return DocumentPath(PlatformProgramFile().parent_path());
}

std::string ProgramSettingsPath(const std::string& programFolder) {
    const auto native = FindNativePath(programFolder);
    const std::string folder =
        native && PlatformCanWriteFolder(*native)
            ? programFolder
            : FindDocumentPath(PlatformConfigurationFolder() / OwnFolder).value_or(programFolder);
    return WithBackslash(folder) + "tavmoor.ini";
}

std::string UserDataFolder() {
    return DocumentPath(ProgramDataFolder());
}

std::filesystem::path ProgramDataFolder() {
    return PlatformDataFolder() / OwnFolder;
}

} // namespace tavmoor
