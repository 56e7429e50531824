#pragma once

#include "core/document/project_document.h"
#include "core/files/profile_file.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tavmoor {

enum class FindingKind : std::uint8_t {
    FolderMissing,
    NoTemplate,
    DescriptorMissing,
    RuntimeMissing,
    NameInvalid,
    FileMissing,
    FileEmpty,
    NameNotScramblable,
    TooManyFiles,
    SameName,
    ValueTooLong,
    UndefinedCharacter,
};

/// One thing that would go wrong in a build, or on the finished disc.
struct Finding {
    FindingKind kind;
    std::string subject; ///< the file, key or name at fault; code page bytes
    std::string text;    ///< a whole sentence; code page bytes
};

/// Looks for all that would go wrong, without writing anything.
/// @param document the project as it was read
/// @param file the project file itself: what the reader cut or dropped is only seen there
/// @param programFolder stands for a leading "%" in the file
std::vector<Finding> CheckProject(const ProjectDocument& document, const ProfileFile& file,
                                  const std::string& programFolder);

} // namespace tavmoor
