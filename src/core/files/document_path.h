#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tavmoor {

// A path in the document and in every file that is written has the Windows form, with backslashes,
// in the system's code page. Off Windows, drive Z: is the root of the file system, so that
// /home/ana/disc is "Z:\home\ana\disc". Only this module converts paths.

/// The native path of a document path. Off Windows every part is looked up without regard to case,
/// an exact match first; parts that do not exist keep their spelling.
/// @throws RuntimeError 76 off Windows for a drive other than Z: or a network path.
std::filesystem::path NativePath(std::string_view documentPath);

/// As NativePath, but nothing where a path has no counterpart on this system.
std::optional<std::filesystem::path> FindNativePath(std::string_view documentPath);

/// The document path of a native path; a relative one stays relative.
/// @throws RuntimeError 52 when a character has no place in the code page, or when a name holds a
///         backslash, which a document path cannot say.
std::string DocumentPath(const std::filesystem::path& nativePath);

/// As DocumentPath, but nothing for a path that the document cannot say.
std::optional<std::string> FindDocumentPath(const std::filesystem::path& nativePath);

/// The document form of a native path for a message; what it cannot say is replaced.
std::string ShownPath(const std::filesystem::path& nativePath);

/// True when two document paths are equal but for case, as the target file system compares them.
bool SamePath(std::string_view a, std::string_view b);

} // namespace tavmoor
