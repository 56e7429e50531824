#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>
#include <vector>

namespace tavmoor {

/// A large file that is written from its start to its end. Bytes are gathered into writes that
/// begin and end on page borders, since the system pays for every page that a write touches, and
/// the disk space is asked for in advance, so that a full disk shows before the first byte.
class SequentialOutput {
public:
    SequentialOutput();
    SequentialOutput(const SequentialOutput&) = delete;
    SequentialOutput& operator=(const SequentialOutput&) = delete;
    ~SequentialOutput();

    /// Opens the file over an older one.
    /// @param expectedSize bytes that will come; only a hint
    std::error_code Open(const std::filesystem::path& path, std::uint64_t expectedSize);
    std::error_code Append(std::string_view bytes);
    /// Writes what is left and closes the file.
    std::error_code Close();

private:
    class Platform; // one file per platform

    std::unique_ptr<Platform> platform_;
    std::vector<char> buffer_;
    std::size_t filled_ = 0;
};

} // namespace tavmoor
