#pragma once

#include <filesystem>

namespace tavmoor {

// What the system does beyond this program. False when it refuses.

bool PlatformAddFont(const std::filesystem::path& file);
bool PlatformRemoveFont(const std::filesystem::path& file);

} // namespace tavmoor
