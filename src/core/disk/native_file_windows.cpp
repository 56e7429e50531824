#include "core/disk/native_file.h"

#include <algorithm>
#include <windows.h>

namespace tavmoor {

std::error_code LastNativeError() {
    return {static_cast<int>(GetLastError()), std::system_category()};
}

std::error_code WriteAll(NativeFile file, std::string_view bytes) {
    constexpr std::size_t block = 1U << 20U;
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(bytes.size(), block));
        if (WriteFile(reinterpret_cast<HANDLE>(file), bytes.data(), count, &written, nullptr) ==
            0) {
            return LastNativeError();
        }
        bytes.remove_prefix(written);
    }
    return {};
}

} // namespace tavmoor
