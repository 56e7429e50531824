#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tavmoor {

/// The identities of the six fixed commands on the canvas, in slots 1 to 6: a button whose
/// `DugmeID` equals FixedButtonId[n] is fixed command n.
inline constexpr std::array<std::int32_t, 7> FixedButtonId{0,       1093303, 4399733, 2133823,
                                                           5093223, 7093523, 9493723};

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
