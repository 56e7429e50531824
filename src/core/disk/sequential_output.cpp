#include "core/disk/sequential_output.h"

#include "core/disk/sequential_output_platform.h"

#include <algorithm>

namespace tavmoor {

namespace {

/// A multiple of every page size in use, small enough to stay in the processor's cache.
constexpr std::size_t WriteSize = std::size_t{128} * 1024;

} // namespace

SequentialOutput::SequentialOutput()
    : platform_(std::make_unique<Platform>()), buffer_(WriteSize) {}

SequentialOutput::~SequentialOutput() = default;

std::error_code SequentialOutput::Open(const std::filesystem::path& path,
                                       std::uint64_t expectedSize) {
    filled_ = 0;
    return platform_->Open(path, expectedSize);
}

std::error_code SequentialOutput::Append(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t count = std::min(bytes.size(), buffer_.size() - filled_);
        std::copy_n(bytes.data(), count, buffer_.data() + filled_);
        filled_ += count;
        bytes.remove_prefix(count);
        if (filled_ == buffer_.size()) {
            filled_ = 0;
            if (const std::error_code error = platform_->Write({buffer_.data(), buffer_.size()})) {
                return error;
            }
        }
    }
    return {};
}

std::error_code SequentialOutput::Close() {
    const std::error_code written = platform_->Write({buffer_.data(), filled_});
    filled_ = 0;
    const std::error_code closed = platform_->Close();
    return written ? written : closed;
}

} // namespace tavmoor
