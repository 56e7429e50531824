#include "core/disk/file_copy.h"

#include "core/disk/native_file.h"

#include <windows.h>

namespace tavmoor {

std::error_code CopyNativeFile(const std::filesystem::path& from, const std::filesystem::path& to) {
    // The library's own copy takes every existing target for the source itself and refuses it.
    if (CopyFileW(from.c_str(), to.c_str(), FALSE) == 0) {
        return LastNativeError();
    }
    // A file that came from a CD is read-only, and the next build could not replace its copy.
    SetFileAttributesW(to.c_str(), FILE_ATTRIBUTE_NORMAL);
    return {};
}

} // namespace tavmoor
