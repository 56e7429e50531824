#include "core/formats/wmf_header.h"

#include "core/formats/byte_view.h"

#include <cstdlib>

namespace tavmoor {

namespace {

constexpr std::size_t PlacingBytes = 22;
constexpr std::size_t HeaderBytes = 18;
constexpr std::size_t RecordHeadBytes = 6;
constexpr std::uint16_t SetWindowOrigin = 0x020B;
constexpr std::uint16_t SetWindowExtent = 0x020C;

bool IsPlaced(const ByteView& view) {
    return view.U32(0) == 0x9AC6CDD7;
}

/// Turned-over extents mirror the picture and do not change its size.
std::optional<PixelSize> SizeOf(const MetafileFrame& frame, int unitsPerInch) {
    return MetafileSize(std::abs(frame.width), std::abs(frame.height), unitsPerInch);
}

/// Takes the frame from the first window that the records set.
void TakeWindow(const ByteView& record, MetafileFrame& window) {
    if (window.width != 0 || !record.Has(0, RecordHeadBytes + 4)) {
        return;
    }
    const std::uint16_t function = record.U16(4);
    if (function == SetWindowOrigin) {
        window.top = record.I16(6);
        window.left = record.I16(8);
    }
    if (function == SetWindowExtent) {
        window.height = record.I16(6);
        window.width = record.I16(8);
    }
}

/// Walks over the records up to the one that ends the list and counts them.
bool WalkRecords(std::string_view wmf, MetafileOutline& outline) {
    for (std::size_t at = outline.records;;) {
        const ByteView record(WmfRecordAt(wmf, at));
        if (record.Size() == 0) {
            return false;
        }
        ++outline.recordCount;
        if (record.U16(4) == 0) {
            return true;
        }
        TakeWindow(record, outline.frame);
        at += record.Size();
    }
}

} // namespace

std::optional<WmfPlacing> ReadWmfPlacing(std::string_view wmf) {
    const ByteView view(wmf);
    if (!IsPlaced(view) || !view.Has(0, PlacingBytes)) {
        return std::nullopt;
    }
    const MetafileFrame frame{view.I16(6), view.I16(8), view.I16(10) - view.I16(6),
                              view.I16(12) - view.I16(8)};
    const auto size = SizeOf(frame, view.U16(14));
    return size ? std::optional(WmfPlacing{frame, *size}) : std::nullopt;
}

std::optional<MetafileOutline> OutlineWmf(std::string_view wmf) {
    const ByteView view(wmf);
    const bool isPlaced = IsPlaced(view);
    const std::size_t header = isPlaced ? PlacingBytes : 0;
    const std::uint16_t kind = view.U16(header);
    MetafileOutline outline;
    outline.records = header + HeaderBytes;
    if ((kind != 1 && kind != 2) || view.U16(header + 2) != HeaderBytes / 2 ||
        !WalkRecords(wmf, outline)) {
        return std::nullopt;
    }
    // Without a placing header a unit of the window counts as a pixel.
    auto size = SizeOf(outline.frame, MetafilePixelsPerInch);
    if (isPlaced) {
        const auto placing = ReadWmfPlacing(wmf);
        outline.frame = placing ? placing->frame : MetafileFrame{};
        size = placing ? std::optional(placing->size) : std::nullopt;
    }
    if (!size) {
        return std::nullopt;
    }
    outline.size = *size;
    return outline;
}

std::string_view WmfRecordAt(std::string_view wmf, std::size_t at) {
    const ByteView view(wmf);
    const std::size_t size = std::size_t{view.U32(at)} * 2; // told in words
    return size >= RecordHeadBytes && view.Has(at, size) ? view.Bytes(at, size)
                                                         : std::string_view{};
}

} // namespace tavmoor
