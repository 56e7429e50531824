#pragma once

#include "core/disk/native_file.h"
#include "core/disk/sequential_output.h"

namespace tavmoor {

class SequentialOutput::Platform {
public:
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    ~Platform() { Close(); }

    std::error_code Open(const std::filesystem::path& path, std::uint64_t expectedSize);
    std::error_code Write(std::string_view bytes) { return WriteAll(file_, bytes); }
    std::error_code Close();

private:
    static constexpr NativeFile NoFile = -1; ///< of both platforms

    NativeFile file_ = NoFile;
};

} // namespace tavmoor
