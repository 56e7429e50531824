#include "core/formats/bmp_header.h"

#include "core/formats/byte_view.h"

#include <cstdlib>

namespace tavmoor {

namespace {

constexpr std::uint32_t OldHeaderBytes = 12;

BitmapHeader OldHeader(const ByteView& view) {
    BitmapHeader header;
    header.size = {view.U16(4), view.U16(6)};
    header.bits = view.U16(10);
    return header;
}

BitmapHeader UsualHeader(const ByteView& view) {
    BitmapHeader header;
    header.size = {view.I32(4), std::llabs(view.I32(8))};
    header.bits = view.U16(14);
    header.compression = view.U32(16);
    return header;
}

std::uint32_t PaletteBytes(const ByteView& view, const BitmapHeader& header) {
    constexpr std::uint16_t MostPaletteBits = 8;
    constexpr std::uint32_t Masks = 3;
    const bool isOld = header.headerBytes == OldHeaderBytes;
    if (header.bits > MostPaletteBits) {
        return header.compression == Masks ? 12 : 0;
    }
    const std::uint32_t used = isOld ? 0 : view.U32(32);
    const std::uint32_t all = 1U << header.bits;
    return (used == 0 || used > all ? all : used) * (isOld ? 3 : 4);
}

} // namespace

std::optional<BitmapHeader> ReadBitmapHeader(std::string_view bitmap) {
    constexpr std::size_t LeastUsualBytes = 20;
    const ByteView view(bitmap);
    const std::uint32_t headerBytes = view.U32(0);
    const bool isOld = headerBytes == OldHeaderBytes;
    if (!view.Has(0, isOld ? OldHeaderBytes : LeastUsualBytes)) {
        return std::nullopt;
    }
    BitmapHeader header = isOld ? OldHeader(view) : UsualHeader(view);
    header.headerBytes = headerBytes;
    header.paletteBytes = PaletteBytes(view, header);
    return header.size.IsEmpty() ? std::nullopt : std::optional(header);
}

bool HoldsAllRows(const BitmapHeader& header, std::string_view data) {
    constexpr std::uint32_t Rle8 = 1;
    constexpr std::uint32_t Rle4 = 2;
    constexpr std::uint16_t MostBits = 32;
    if (header.bits == 0 || header.bits > MostBits) {
        return false;
    }
    if (header.compression == Rle8 || header.compression == Rle4) {
        return data.size() >= 2 && data.find('\0') != data.npos;
    }
    // Each row is filled up to 4 bytes. The division keeps the product of hostile dimensions away.
    const std::int64_t row = (header.size.width * header.bits + 31) / 32 * 4;
    return static_cast<std::int64_t>(data.size()) / row >= header.size.height;
}

std::optional<BmpHeader> ReadBmpHeader(std::string_view bmp) {
    const ByteView view(bmp);
    const auto bitmap = ReadBitmapHeader(view.Bytes(BmpFileHeaderBytes, bmp.size()));
    if (!bitmap) {
        return std::nullopt;
    }
    return BmpHeader{bitmap->size, HoldsAllRows(*bitmap, view.Bytes(view.U32(10), bmp.size()))};
}

} // namespace tavmoor
