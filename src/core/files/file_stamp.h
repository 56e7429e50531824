#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace tavmoor {

/// Tells whether a file is still the one it was, without reading it.
struct FileStamp {
    std::string path;
    std::uint64_t length = 0;
    std::filesystem::file_time_type written{};
    bool operator==(const FileStamp&) const = default;
};

/// The stamp of a file now; just its path for one that is missing or cannot be asked.
FileStamp FileStampOf(std::string_view path);

} // namespace tavmoor
