#include "core/files/program_folder.h"

#include "core/files/document_path.h"
#include "core/files/system_folders.h"
#include "core/text/path_text.h"

namespace tavmoor {

namespace {

constexpr const char* OwnFolder = "tavmoor";

} // namespace

std::string ProgramFolder() {
    return DocumentPath(ProgramFile().parent_path());
}

std::string ProgramSettingsPath(const std::string& programFolder) {
    const auto native = FindNativePath(programFolder);
    const std::string folder =
        native && CanWriteFolder(*native)
            ? programFolder
            : FindDocumentPath(ProgramConfigurationFolder()).value_or(programFolder);
    return WithBackslash(folder) + "tavmoor.ini";
}

std::filesystem::path ProgramConfigurationFolder() {
    return UserConfigurationFolder() / OwnFolder;
}

std::filesystem::path ProgramDataFolder() {
    return UserDataFolder() / OwnFolder;
}

} // namespace tavmoor
