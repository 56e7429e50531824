#include "services/pictures/device_bitmap.h"

#include "core/formats/byte_view.h"
#include "core/formats/raster_outline.h"

#include <QByteArray>

#include <cstdlib>

namespace tavmoor {

namespace {

/// The bytes of the palette, or of the masks that stand in its place.
std::uint32_t PaletteBytes(const ByteView& view, bool isOldHeader) {
    constexpr std::uint16_t MostPaletteBits = 8;
    constexpr std::uint32_t Masks = 3;
    const std::uint16_t bits = isOldHeader ? view.U16(10) : view.U16(14);
    if (bits > MostPaletteBits) {
        return !isOldHeader && view.U32(16) == Masks ? 12 : 0;
    }
    const std::uint32_t used = isOldHeader ? 0 : view.U32(32);
    const std::uint32_t all = 1U << bits;
    return (used == 0 || used > all ? all : used) * (isOldHeader ? 3 : 4);
}

void AppendU32(std::string& text, std::uint32_t value) {
    for (unsigned shift = 0; shift < 32; shift += 8) {
        text.push_back(static_cast<char>(value >> shift & 0xFFU));
    }
}

} // namespace

QImage DecodeDeviceBitmap(std::string_view bytes, qint64& pixels) {
    constexpr std::uint32_t FileHeaderBytes = 14;
    const ByteView view(bytes);
    const std::uint32_t headerBytes = view.U32(0);
    const bool isOldHeader = headerBytes == 12;
    if (headerBytes > bytes.size()) {
        return {};
    }
    pixels -= isOldHeader ? qint64{view.U16(4)} * view.U16(6)
                          : std::llabs(qint64{view.I32(4)} * view.I32(8));
    if (pixels < 0) {
        return {};
    }
    std::string file = "BM";
    AppendU32(file, FileHeaderBytes + static_cast<std::uint32_t>(bytes.size()));
    AppendU32(file, 0);
    AppendU32(file, FileHeaderBytes + headerBytes + PaletteBytes(view, isOldHeader));
    file += bytes;
    if (!OutlineRaster(PictureFormat::Bmp, file).whole) {
        return {};
    }
    return QImage::fromData(reinterpret_cast<const uchar*>(file.data()),
                            static_cast<int>(file.size()), "BMP");
}

} // namespace tavmoor
