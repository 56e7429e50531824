#include "core/files/build_folder.h"

#include "core/files/build_folder_platform.h"
#include "core/files/document_path.h"
#include "core/files/runtime_error.h"
#include "core/text/path_text.h"

namespace tavmoor {

namespace {

constexpr std::size_t LongestTemporaryPath = 255;

} // namespace

std::string TemporaryPath() {
    return FindDocumentPath(PlatformTemporaryFolder())
        .value_or(std::string())
        .substr(0, LongestTemporaryPath);
}

std::string BuildFolder() {
    return WithBackslash(TemporaryPath()) + "TAVMOORbuild\\";
}

void EnsureBuildFolder() {
    const auto temporary = FindDocumentPath(PlatformTemporaryFolder());
    const auto folder =
        temporary ? FindNativePath(WithBackslash(*temporary) + "TAVMOORBuild") : std::nullopt;
    if (folder) {
        PlatformMakePrivateFolder(*folder);
    }
}

void RequireOwnFolder(const std::string& folder) {
    switch (PlatformFolderOwner(NativePath(folder))) {
    case FolderOwner::User:
        return;
    case FolderOwner::Missing:
        throw RuntimeError(ErrorNumber::PathNotFound, folder);
    case FolderOwner::Other:
        throw RuntimeError(ErrorNumber::PermissionDenied, folder);
    }
}

} // namespace tavmoor
