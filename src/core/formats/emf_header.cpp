#include "core/formats/emf_header.h"

#include "core/formats/byte_view.h"

namespace tavmoor {

namespace {

constexpr std::uint32_t HeaderRecord = 1;
constexpr std::uint32_t EndRecord = 14;
constexpr std::size_t LeastHeaderBytes = 88;

/// Walks over the records up to the one that ends the list and counts them.
bool WalkRecords(const ByteView& view, MetafileOutline& outline) {
    for (std::size_t at = 0; view.Has(at, 8);) {
        const std::size_t size = view.U32(at + 4);
        if (size < 8 || size % 4 != 0 || !view.Has(at, size)) {
            return false;
        }
        ++outline.recordCount;
        if (view.U32(at) == EndRecord) {
            return true;
        }
        at += size;
    }
    return false;
}

} // namespace

std::optional<PixelSize> ReadEmfSize(std::string_view emf) {
    constexpr int HundredthsOfMillimetrePerInch = 2540;
    constexpr std::size_t FrameAt = 24;
    const ByteView view(emf);
    if (view.U32(0) != HeaderRecord || !view.Has(FrameAt, 16)) {
        return std::nullopt;
    }
    return MetafileSize(std::int64_t{view.I32(FrameAt + 8)} - view.I32(FrameAt),
                        std::int64_t{view.I32(FrameAt + 12)} - view.I32(FrameAt + 4),
                        HundredthsOfMillimetrePerInch);
}

std::optional<MetafileOutline> OutlineEmf(std::string_view emf) {
    const ByteView view(emf);
    const auto size = ReadEmfSize(emf);
    MetafileOutline outline;
    outline.records = view.U32(4); // behind the header
    if (!size || outline.records < LeastHeaderBytes || !WalkRecords(view, outline)) {
        return std::nullopt;
    }
    outline.size = *size;
    return outline;
}

} // namespace tavmoor
