#include "core/formats/metafile_outline.h"

#include "core/formats/byte_view.h"

#include <cstdlib>

namespace tavmoor {

namespace {

constexpr int PixelsPerInch = 96;

/// Pixels of a length; at least one for anything that is not empty.
std::optional<int> Pixels(std::int64_t length, std::int64_t unitsPerInch) {
    constexpr std::int64_t Most = 1'000'000;
    const std::int64_t pixels = (length * PixelsPerInch + unitsPerInch / 2) / unitsPerInch;
    if (length <= 0 || pixels > Most) {
        return std::nullopt;
    }
    return static_cast<int>(pixels > 0 ? pixels : 1);
}

constexpr std::size_t PlacingHeaderBytes = 22;
constexpr std::size_t WmfHeaderBytes = 18;
constexpr std::uint16_t SetWindowOrigin = 0x020B;
constexpr std::uint16_t SetWindowExtent = 0x020C;

/// Walks over the records, counts them, and takes the frame from the first window they set.
bool WalkWmf(const ByteView& view, MetafileOutline& outline, MetafileFrame& window) {
    for (std::size_t at = outline.records; view.Has(at, 6);) {
        const std::size_t size = std::size_t{view.U32(at)} * 2;
        const std::uint16_t function = view.U16(at + 4);
        if (size < 6 || !view.Has(at, size)) {
            return false;
        }
        ++outline.recordCount;
        if (function == 0) {
            return true;
        }
        if (function == SetWindowOrigin && window.width == 0 && size >= 10) {
            window.top = view.I16(at + 6);
            window.left = view.I16(at + 8);
        }
        if (function == SetWindowExtent && window.width == 0 && size >= 10) {
            window.height = view.I16(at + 6);
            window.width = view.I16(at + 8);
        }
        at += size;
    }
    return false;
}

} // namespace

std::optional<MetafileOutline> OutlineWmf(std::string_view bytes) {
    const ByteView view(bytes);
    const bool isPlaced = view.U32(0) == 0x9AC6CDD7;
    MetafileOutline outline;
    const std::size_t header = isPlaced ? PlacingHeaderBytes : 0;
    outline.records = header + WmfHeaderBytes;
    const std::uint16_t kind = view.U16(header);
    MetafileFrame window;
    if ((kind != 1 && kind != 2) || view.U16(header + 2) != WmfHeaderBytes / 2 ||
        !WalkWmf(view, outline, window)) {
        return std::nullopt;
    }
    // Without a placing header a unit of the window counts as a pixel.
    int unitsPerInch = PixelsPerInch;
    outline.frame = window;
    if (isPlaced) {
        outline.frame = {view.I16(6), view.I16(8), view.I16(10) - view.I16(6),
                         view.I16(12) - view.I16(8)};
        unitsPerInch = view.U16(14);
    }
    if (unitsPerInch == 0) {
        return std::nullopt;
    }
    const auto width = Pixels(std::abs(outline.frame.width), unitsPerInch);
    const auto height = Pixels(std::abs(outline.frame.height), unitsPerInch);
    if (!width || !height) {
        return std::nullopt;
    }
    outline.width = *width;
    outline.height = *height;
    return outline;
}

std::optional<MetafileOutline> OutlineEmf(std::string_view bytes) {
    constexpr std::uint32_t HeaderRecord = 1;
    constexpr std::uint32_t EndRecord = 14;
    constexpr std::size_t LeastHeaderBytes = 88;
    constexpr std::int64_t HundredthsOfMillimetrePerInch = 2540;
    const ByteView view(bytes);
    MetafileOutline outline;
    outline.records = view.U32(4);
    if (view.U32(0) != HeaderRecord || outline.records < LeastHeaderBytes) {
        return std::nullopt;
    }
    const auto width =
        Pixels(std::int64_t{view.I32(32)} - view.I32(24), HundredthsOfMillimetrePerInch);
    const auto height =
        Pixels(std::int64_t{view.I32(36)} - view.I32(28), HundredthsOfMillimetrePerInch);
    if (!width || !height) {
        return std::nullopt;
    }
    outline.width = *width;
    outline.height = *height;
    for (std::size_t at = 0; view.Has(at, 8);) {
        const std::size_t size = view.U32(at + 4);
        if (size < 8 || size % 4 != 0 || !view.Has(at, size)) {
            return std::nullopt;
        }
        ++outline.recordCount;
        if (view.U32(at) == EndRecord) {
            return outline;
        }
        at += size;
    }
    return std::nullopt;
}

} // namespace tavmoor
