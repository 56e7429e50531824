#pragma once

#include <string>

namespace tavmoor {

/// The system's folder for temporary files, in document form; at most 255 characters. Whether it
/// exists is not asked. "" when the document cannot say it: the program starts all the same, and
/// RequireOwnFolder refuses the build folder.
std::string TemporaryPath();

/// The folder in which a build works, with a backslash at its end.
std::string BuildFolder();

/// Makes BuildFolder for this user alone. Every failure is ignored, since it usually exists; the
/// build finds out.
void EnsureBuildFolder();

/// That the folder may be used for a build: it exists, is no link and is the user's own.
/// @throws RuntimeError 76 when it does not exist, 70 when it is a link or somebody else's
void RequireOwnFolder(const std::string& folder);

} // namespace tavmoor
