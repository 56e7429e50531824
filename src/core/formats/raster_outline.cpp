#include "core/formats/raster_outline.h"

#include "core/formats/byte_view.h"

#include <algorithm>
#include <cstdlib>

namespace tavmoor {

namespace {

constexpr std::uint32_t PlainPixel = 4;
/// A 16-bit png, a gif with the screen before the frame, an icon before the mask is laid in.
constexpr std::uint32_t DoublePixel = 8;
/// A jpg in several scans: the decoder keeps every component of every pixel until the last one.
constexpr std::uint32_t CoefficientBytes = 2;

namespace jpeg {

// Markers, the byte behind 0xFF.
constexpr std::uint8_t ProgressiveFrame = 0xC2;
constexpr std::uint8_t ProgressiveArithmeticFrame = 0xCA;
constexpr std::uint8_t FirstRestart = 0xD0;
constexpr std::uint8_t Begin = 0xD8;
constexpr std::uint8_t End = 0xD9;
constexpr std::uint8_t Scan = 0xDA;

bool IsFrame(std::uint8_t marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}
bool IsProgressive(std::uint8_t marker) {
    return marker == ProgressiveFrame || marker == ProgressiveArithmeticFrame;
}
bool HasSegment(std::uint8_t marker) {
    return marker >= 0xC0 && !(marker >= FirstRestart && marker <= Begin);
}

/// Steps through the markers of a file as decoders do: what lies between two segments, such as the
/// picture's data, is passed over up to the next 0xFF that is followed by anything but 0.
class Markers {
public:
    explicit Markers(std::string_view bytes) : bytes_(bytes) {}

    /// @return the next marker, 0 at the end of the file
    std::uint8_t Next() {
        if (HasSegment(marker_)) {
            at_ += ByteView(bytes_).BigU16(at_);
        }
        do {
            at_ = bytes_.find_first_not_of('\xFF', bytes_.find('\xFF', at_));
            if (at_ == std::string_view::npos) {
                marker_ = 0;
                break;
            }
            marker_ = ByteView(bytes_).U8(at_++);
        } while (marker_ == 0);
        return marker_;
    }
    /// A byte of the segment, counted from its length on.
    [[nodiscard]] std::uint8_t At(std::size_t offset) const {
        return ByteView(bytes_).U8(at_ + offset);
    }

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
    std::uint8_t marker_ = 0;
};

} // namespace jpeg

RasterOutline OutlineJpeg(std::string_view bytes) {
    // Pictures have some 10. Each costs a pass over the whole picture, however short it is.
    constexpr int MostScans = 100;
    RasterOutline outline;
    std::uint32_t components = 0;
    int scans = 0;
    bool isInScans = false;
    jpeg::Markers markers(bytes);
    for (auto marker = markers.Next(); marker != 0 && scans <= MostScans; marker = markers.Next()) {
        if (marker == jpeg::End) {
            outline.whole = scans > 0;
            break;
        }
        if (jpeg::IsFrame(marker)) {
            components = std::max<std::uint32_t>(components, markers.At(7));
            isInScans = isInScans || jpeg::IsProgressive(marker);
        } else if (marker == jpeg::Scan) {
            isInScans = isInScans || markers.At(2) < components;
            ++scans;
        }
    }
    outline.bytesPerPixel = PlainPixel + (isInScans ? CoefficientBytes * components : 0);
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
    case PictureFormat::Png:
        // Their decoders find what is missing by themselves.
        return {true, DoublePixel};
    case PictureFormat::Wmf:
    case PictureFormat::Emf:
    case PictureFormat::Unknown:
        break;
    }
    return {};
}

} // namespace tavmoor
