#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavmoor {

/// The autorun programs of this maker in a folder: the "*.exe" whose version block carries the
/// maker's marker. Programs of others, and files that are no programs, are never among them.
std::vector<std::string> MarkedProgramsIn(std::string_view folder);

/// Deletes them, and swallows every failure.
void DeleteMarkedPrograms(std::string_view folder);

} // namespace tavmoor
