#include "core/formats/gif_header.h"

#include "core/formats/byte_view.h"

#include <algorithm>

namespace tavmoor {

namespace {

/// The position behind a chain of data blocks, each led by its length; nothing when it is cut.
std::optional<std::size_t> BehindBlocks(const ByteView& view, std::size_t at) {
    while (view.Has(at, 1)) {
        const std::uint8_t length = view.U8(at);
        at += 1U + length;
        if (length == 0) {
            return at;
        }
    }
    return std::nullopt;
}

std::size_t PaletteBytes(std::uint8_t flags) {
    constexpr std::uint8_t HasPalette = 0x80;
    return (flags & HasPalette) != 0 ? 3U * (2U << (flags & 7U)) : 0U;
}

/// The position of the first picture's description, behind all extensions.
std::optional<std::size_t> FindPicture(const ByteView& view) {
    constexpr std::size_t ScreenBytes = 13;
    std::optional<std::size_t> at = ScreenBytes + PaletteBytes(view.U8(10));
    while (at && view.U8(*at) == '!') {
        at = BehindBlocks(view, *at + 2);
    }
    return at && view.U8(*at) == ',' ? at : std::nullopt;
}

} // namespace

std::optional<GifHeader> ReadGifHeader(std::string_view gif) {
    constexpr std::size_t PictureBytes = 10;
    const ByteView view(gif);
    const auto at = FindPicture(view);
    if (!at || !view.Has(*at, PictureBytes)) {
        return std::nullopt;
    }
    GifHeader header;
    header.size = {std::max<int>(view.U16(6), view.U16(*at + 1) + view.U16(*at + 5)),
                   std::max<int>(view.U16(8), view.U16(*at + 3) + view.U16(*at + 7))};
    constexpr std::size_t CodeSizeBytes = 1;
    const std::size_t data = *at + PictureBytes + PaletteBytes(view.U8(*at + 9)) + CodeSizeBytes;
    header.isWhole = BehindBlocks(view, data).has_value();
    return header;
}

} // namespace tavmoor
