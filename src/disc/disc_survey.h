#pragma once

#include "core/disk/file_identity.h"
#include "core/document/project_document.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavmoor {

/// In the order in which older output goes: what names a program goes before that program.
enum class OutputKind : std::uint8_t { Inf, Package, Icon, Program };

/// A file in the disc's folder that a build replaces or deletes.
struct OldOutput {
    std::filesystem::path path;
    OutputKind kind = OutputKind::Inf;
    FileIdentity identity;   ///< of the entry itself
    std::uint64_t bytes = 0; ///< that come free with it
    bool isForeign = false;  ///< has the autorun's name, but is no program of this maker
    bool isFolder = false;   ///< a folder lies where an output goes
};

/// All of them: `Autorun.inf`, `Autorun.arn` and `Autorun.ico` in any case, programs with the
/// maker's marker, and what has the name of the autorun. Looked at by name and content; nothing is
/// opened that is no regular file.
/// @param programName the autorun's file name
/// @throws RuntimeError when the folder cannot be listed
std::vector<OldOutput> SurveyDisc(const std::filesystem::path& folder,
                                  std::string_view programName);

/// True when the entry is still the one that was looked at.
bool IsUnchanged(const OldOutput& output);

/// The files that the project is built from, in document form: the project itself, its template and
/// all that goes into the package, `Ikona` among them.
std::vector<std::string> InputsOf(const ProjectDocument& document);

/// True when the path leads to this very entry, or through it.
bool LeadsTo(const std::string& documentPath, const OldOutput& output);

} // namespace tavmoor
