#include "core/disk/file_copy.h"

namespace tavmoor {

std::error_code CopyNativeFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code error;
    std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing, error);
    return error;
}

} // namespace tavmoor
