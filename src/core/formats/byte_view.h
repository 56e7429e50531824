#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace tavmoor {

/// Reads numbers of foreign files: pictures, sounds and programs, lowest byte first unless the name
/// says otherwise. What lies beyond the end reads as 0, so that a damaged file costs no more than a
/// wrong number; Has tells where that matters.
class ByteView {
public:
    explicit ByteView(std::string_view bytes) noexcept : bytes_(bytes) {}
    explicit ByteView(std::span<const unsigned char> bytes) noexcept
        : bytes_(reinterpret_cast<const char*>(bytes.data()), bytes.size()) {}

    [[nodiscard]] std::size_t Size() const noexcept { return bytes_.size(); }
    [[nodiscard]] bool Has(std::size_t at, std::size_t count) const noexcept {
        return at <= bytes_.size() && count <= bytes_.size() - at;
    }
    [[nodiscard]] std::uint8_t U8(std::size_t at) const noexcept {
        return at < bytes_.size() ? static_cast<std::uint8_t>(bytes_[at]) : std::uint8_t{0};
    }
    [[nodiscard]] std::uint16_t U16(std::size_t at) const noexcept {
        return static_cast<std::uint16_t>(U8(at) | U8(at + 1) << 8U);
    }
    /// The order of bytes in jpg and png files.
    [[nodiscard]] std::uint16_t BigU16(std::size_t at) const noexcept {
        return static_cast<std::uint16_t>(U8(at) << 8U | U8(at + 1));
    }
    [[nodiscard]] std::uint32_t BigU32(std::size_t at) const noexcept {
        return static_cast<std::uint32_t>(BigU16(at)) << 16U | BigU16(at + 2);
    }
    [[nodiscard]] std::int16_t I16(std::size_t at) const noexcept {
        return static_cast<std::int16_t>(U16(at));
    }
    [[nodiscard]] std::uint32_t U32(std::size_t at) const noexcept {
        return U16(at) | static_cast<std::uint32_t>(U16(at + 2)) << 16U;
    }
    [[nodiscard]] std::int32_t I32(std::size_t at) const noexcept {
        return static_cast<std::int32_t>(U32(at));
    }
    /// At most `count` bytes, fewer at the end of the file.
    [[nodiscard]] std::string_view Bytes(std::size_t at, std::size_t count) const noexcept {
        return at <= bytes_.size() ? bytes_.substr(at, count) : std::string_view{};
    }

private:
    std::string_view bytes_;
};

} // namespace tavmoor
