#include "services/raster_outline.h"

#include "services/byte_view.h"

#include <cstdlib>

namespace tavmoor {

namespace {

constexpr std::uint32_t PlainPixel = 4;
/// A 16-bit png, and a gif with the screen before the frame.
constexpr std::uint32_t DoublePixel = 8;
/// A jpg in several scans: the decoder keeps all coefficients, 2 bytes for each of 3 components.
constexpr std::uint32_t CoefficientPixel = PlainPixel + 6;

bool IsJpegFrame(std::uint8_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

RasterOutline OutlineJpeg(std::string_view bytes) {
    const ByteView view(bytes);
    RasterOutline outline;
    std::uint8_t components = 0;
    for (std::size_t at = 2; view.U8(at) == 0xFF;) {
        const std::uint8_t marker = view.U8(at + 1);
        if (marker == 0xFF) { // padding before a marker
            ++at;
            continue;
        }
        if (IsJpegFrame(marker)) {
            components = view.U8(at + 9);
            if (marker == 0xC2) {
                outline.bytesPerPixel = CoefficientPixel;
            }
        }
        if (marker == 0xDA) {
            if (view.U8(at + 4) < components) {
                outline.bytesPerPixel = CoefficientPixel;
            }
            // Within the picture's data 0xFF is never followed by 0xD9 but at its end.
            outline.whole = bytes.find("\xFF\xD9", at) != std::string_view::npos;
            return outline;
        }
        at += 2U + view.BigU16(at + 2);
    }
    return outline;
}

RasterOutline OutlineBmp(std::string_view bytes) {
    const ByteView view(bytes);
    RasterOutline outline;
    const bool isOldHeader = view.U32(14) == 12;
    const std::int64_t width = isOldHeader ? view.U16(18) : view.I32(18);
    const std::int64_t height = isOldHeader ? view.U16(20) : std::llabs(view.I32(22));
    const std::int64_t bits = isOldHeader ? view.U16(24) : view.U16(28);
    const std::uint32_t compression = isOldHeader ? 0 : view.U32(30);
    if (width <= 0 || height == 0 || bits == 0 || bits > 32) {
        return outline;
    }
    constexpr std::uint32_t Rle8 = 1;
    constexpr std::uint32_t Rle4 = 2;
    const auto data = static_cast<std::int64_t>(view.Size()) - view.U32(10);
    // Each row is filled up to 4 bytes. The division keeps the product of hostile dimensions away.
    const std::int64_t row = (width * bits + 31) / 32 * 4;
    const bool isPacked = compression == Rle8 || compression == Rle4;
    outline.whole = isPacked ? data >= 2 && bytes.substr(view.U32(10)).find('\0') != bytes.npos
                             : data / row >= height;
    return outline;
}

/// The position behind a chain of data blocks, each led by its length; 0 when the chain is cut.
std::size_t BehindGifBlocks(const ByteView& view, std::size_t at) {
    while (view.Has(at, 1)) {
        const std::uint8_t length = view.U8(at);
        at += 1U + length;
        if (length == 0) {
            return at;
        }
    }
    return 0;
}

std::size_t GifPaletteBytes(std::uint8_t flags) {
    constexpr std::uint8_t HasPalette = 0x80;
    return (flags & HasPalette) != 0 ? 3U * (2U << (flags & 7U)) : 0U;
}

RasterOutline OutlineGif(std::string_view bytes) {
    const ByteView view(bytes);
    RasterOutline outline;
    outline.bytesPerPixel = DoublePixel;
    std::size_t at = 13 + GifPaletteBytes(view.U8(10));
    while (view.Has(at, 1)) {
        const std::uint8_t kind = view.U8(at);
        if (kind == '!') {
            at = BehindGifBlocks(view, at + 2);
        } else if (kind == ',') {
            // Of an animation only the first picture is shown.
            at += 11 + GifPaletteBytes(view.U8(at + 9));
            outline.whole = BehindGifBlocks(view, at) != 0;
            return outline;
        } else {
            return outline;
        }
        if (at == 0) {
            return outline;
        }
    }
    return outline;
}

RasterOutline OutlineIcon(std::string_view bytes) {
    constexpr int WantedWidth = 32;
    constexpr std::size_t EntryBytes = 16;
    const ByteView view(bytes);
    RasterOutline outline;
    // The pixels are decoded before the mask is laid in.
    outline.bytesPerPixel = DoublePixel;
    int nearest = -1;
    const int count = view.U16(4);
    for (int i = 0; i < count; ++i) {
        const std::size_t at = 6 + EntryBytes * static_cast<std::size_t>(i);
        if (!view.Has(view.U32(at + 12), view.U32(at + 8)) || view.U32(at + 8) == 0) {
            return outline;
        }
        const int width = view.U8(at) == 0 ? 256 : view.U8(at);
        const int distance = std::abs(width - WantedWidth);
        if (nearest < 0 || distance < nearest) {
            nearest = distance;
            outline.index = i;
        }
    }
    outline.whole = count > 0;
    return outline;
}

} // namespace

RasterOutline OutlineRaster(PictureFormat format, std::string_view bytes) {
    switch (format) {
    case PictureFormat::Jpeg:
        return OutlineJpeg(bytes);
    case PictureFormat::Bmp:
        return OutlineBmp(bytes);
    case PictureFormat::Gif:
        return OutlineGif(bytes);
    case PictureFormat::Icon:
    case PictureFormat::Cursor:
        return OutlineIcon(bytes);
    case PictureFormat::Png:
        // Its decoder finds what is missing by itself.
        return {true, DoublePixel, 0};
    case PictureFormat::Wmf:
    case PictureFormat::Emf:
    case PictureFormat::Unknown:
        break;
    }
    return {};
}

} // namespace tavmoor
