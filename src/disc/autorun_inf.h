#pragma once

#include "core/document/project_document.h"

#include <string>
#include <string_view>

namespace tavmoor {

/// The name of the disc's icon file.
inline constexpr std::string_view IconName = "Autorun.ico";

/// The three lines of `Autorun.inf`: the autorun program, and the disc's icon, which is the
/// program's own when the project names none.
std::string AutorunInfText(const ProjectDocument& document);

/// Writes `Autorun.inf` afresh.
/// @throws RuntimeError when it cannot be written
void WriteAutorunInf(const ProjectDocument& document, std::string_view path);

} // namespace tavmoor
