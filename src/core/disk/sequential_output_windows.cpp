#include "core/disk/sequential_output_platform.h"

#include <windows.h>

namespace tavmoor {

namespace {

HANDLE HandleOf(std::intptr_t file) {
    return reinterpret_cast<HANDLE>(file);
}

} // namespace

std::error_code SequentialOutput::Platform::Open(const std::filesystem::path& path,
                                                 std::uint64_t /*expectedSize*/) {
    // Space asked for in advance would have to be filled with zeros first.
    file_ = reinterpret_cast<std::intptr_t>(CreateFileW(
        path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    return file_ == NoFile ? LastNativeError() : std::error_code();
}

std::error_code SequentialOutput::Platform::Close() {
    if (file_ == NoFile) {
        return {};
    }
    const HANDLE file = HandleOf(file_);
    file_ = NoFile;
    return CloseHandle(file) == 0 ? LastNativeError() : std::error_code();
}

} // namespace tavmoor
