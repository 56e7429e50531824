#pragma once

#include "core/document/project_document.h"

#include <string>
#include <string_view>

namespace tavmoor {

inline constexpr std::string_view InfName = "Autorun.inf";
/// The name of the disc's icon file.
inline constexpr std::string_view IconName = "Autorun.ico";

/// The three lines of `Autorun.inf`: the autorun program, and the disc's icon, which is the
/// program's own when the project names none.
std::string AutorunInfText(const ProjectDocument& document);

} // namespace tavmoor
