#include "core/disk/volume_traits.h"

namespace tavmoor {

std::optional<std::uint64_t> FreeBytes(const std::filesystem::path& folder) {
    std::error_code error;
    const auto space = std::filesystem::space(folder, error);
    return error ? std::nullopt : std::optional<std::uint64_t>(space.available);
}

} // namespace tavmoor
