#include "core/disk/sequential_output_platform.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tavmoor {

namespace {

std::error_code AskForSpace(int file, std::uint64_t size) {
#ifdef __linux__
    // Not every file system can; only "disk full" says something about the write to come.
    if (size > 0 && fallocate(file, 0, 0, static_cast<off_t>(size)) != 0 && errno == ENOSPC) {
        return LastNativeError();
    }
#endif
    return {};
}

} // namespace

std::error_code SequentialOutput::Platform::Open(const std::filesystem::path& path,
                                                 std::uint64_t expectedSize) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0) {
        return LastNativeError();
    }
    file_ = file;
    return AskForSpace(file, expectedSize);
}

std::error_code SequentialOutput::Platform::Close() {
    if (file_ == NoFile) {
        return {};
    }
    const auto file = static_cast<int>(file_);
    file_ = NoFile;
    // Space that was asked for and not used goes back.
    const off_t end = lseek(file, 0, SEEK_CUR);
    std::error_code error;
    if (end < 0 || ftruncate(file, end) != 0) {
        error = LastNativeError();
    }
    return close(file) != 0 && !error ? LastNativeError() : error;
}

} // namespace tavmoor
