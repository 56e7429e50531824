#include "core/formats/png_chunks.h"

#include "core/formats/byte_view.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace tavmoor {

namespace {

constexpr std::size_t SignatureBytes = 8;
constexpr std::size_t FrameBytes = 12; ///< length, name and check sum of a chunk
constexpr std::string_view LastChunk = "IEND";
constexpr std::array<std::string_view, 5> PixelChunks{"IHDR", "PLTE", "tRNS", "IDAT", LastChunk};

} // namespace

bool KeepPixelChunks(std::string& png) {
    if (png.size() < SignatureBytes) {
        return false;
    }
    std::size_t kept = SignatureBytes;
    std::string_view name;
    for (std::size_t at = SignatureBytes; at < png.size() && name != LastChunk;) {
        const ByteView view(png);
        const std::size_t length = view.BigU32(at);
        if (!view.Has(at, FrameBytes) || !view.Has(at + FrameBytes, length)) {
            return false;
        }
        name = view.Bytes(at + 4, 4);
        const auto* const found = std::find(PixelChunks.begin(), PixelChunks.end(), name);
        name = found == PixelChunks.end() ? std::string_view{} : *found;
        if (!name.empty()) {
            std::memmove(png.data() + kept, png.data() + at, FrameBytes + length);
            kept += FrameBytes + length;
        }
        at += FrameBytes + length;
    }
    png.resize(kept);
    return true;
}

} // namespace tavmoor
