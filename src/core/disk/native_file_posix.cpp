#include "core/disk/native_file.h"

#include <cerrno>
#include <unistd.h>

namespace tavmoor {

std::error_code LastNativeError() {
    return {errno, std::generic_category()};
}

std::error_code WriteAll(NativeFile file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(static_cast<int>(file), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return LastNativeError();
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return {};
}

} // namespace tavmoor
