#pragma once

#include <cstdint>
#include <filesystem>

namespace tavmoor {

enum class FolderOwner : std::uint8_t { User, Other, Missing };

/// The folder that the system names for temporary files, as it stands.
std::filesystem::path PlatformTemporaryFolder();

/// Makes a folder that only the user can enter; an error is no news here.
void PlatformMakePrivateFolder(const std::filesystem::path& folder);

/// Whose the folder is; a link counts as somebody else's, since its owner decides where it leads,
/// and so does a folder that everybody may write to.
FolderOwner PlatformFolderOwner(const std::filesystem::path& folder);

} // namespace tavmoor
