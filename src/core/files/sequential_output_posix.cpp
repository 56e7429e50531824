#include "core/files/sequential_output_platform.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tavmoor {

namespace {

std::error_code LastError() {
    return {errno, std::generic_category()};
}

std::error_code AskForSpace(int file, std::uint64_t size) {
#ifdef __linux__
    // Not every file system can; only "disk full" says something about the write to come.
    if (size > 0 && fallocate(file, 0, 0, static_cast<off_t>(size)) != 0 && errno == ENOSPC) {
        return LastError();
    }
#endif
    return {};
}

} // namespace

std::error_code SequentialOutput::Platform::Open(const std::filesystem::path& path,
                                                 std::uint64_t expectedSize) {
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (file < 0) {
        return LastError();
    }
    file_ = file;
    return AskForSpace(file, expectedSize);
}

std::error_code SequentialOutput::Platform::Write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(static_cast<int>(file_), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            return LastError();
        }
        bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    return {};
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
        error = LastError();
    }
    return close(file) != 0 && !error ? LastError() : error;
}

} // namespace tavmoor
