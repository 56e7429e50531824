#pragma once

#include <string>
#include <string_view>

namespace tavmoor {

// Paths in document form, taken apart and put together as texts; nothing is asked of the disk.

/// True for a path that begins with a drive letter and a colon, or with a backslash.
bool IsAbsoluteDocumentPath(std::string_view path);

/// `folder` with a backslash at its end; a folder that has one stays as it is.
std::string WithBackslash(std::string_view folder);

/// The part of a path before its last backslash; "" for a path without one.
std::string_view FolderOf(std::string_view path);

/// The part of a path behind the last backslash; a path without one is returned whole.
std::string_view FileNameOf(std::string_view path);

/// The last characters of a path, as many as it is longer than `cdFolder`: for a file inside the
/// folder, its path on the disc. That it lies inside is not tested; "" for a path that is not
/// longer than the folder.
std::string RelativeToCdFolder(std::string_view path, std::string_view cdFolder);

/// A stored path with the leading "%" replaced by the program's folder (no backslash at its end).
/// The separator is put between when the stored value, not the folder, lacks one at its own end:
/// kept so, since stored projects count on it. Other paths come back as they are.
std::string ExpandProgramFolder(std::string_view path, std::string_view programFolder);

} // namespace tavmoor
