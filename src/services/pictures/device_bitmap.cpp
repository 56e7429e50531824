#include "services/pictures/device_bitmap.h"

#include "core/formats/bmp_header.h"

#include <string>

namespace tavmoor {

namespace {

void AppendU32(std::string& text, std::uint32_t value) {
    for (unsigned shift = 0; shift < 32; shift += 8) {
        text.push_back(static_cast<char>(value >> shift & 0xFFU));
    }
}

} // namespace

QImage DecodeDeviceBitmap(std::string_view bytes, qint64& pixels) {
    const auto header = ReadBitmapHeader(bytes);
    if (!header) {
        return {};
    }
    if (header->size.Pixels() > pixels) {
        pixels = -1; // smaller ones that follow are not tried either
        return {};
    }
    pixels -= header->size.Pixels();
    const std::size_t rows = std::size_t{header->headerBytes} + header->paletteBytes;
    if (rows > bytes.size() || !HoldsAllRows(*header, bytes.substr(rows))) {
        return {};
    }
    std::string file = "BM";
    AppendU32(file, BmpFileHeaderBytes + static_cast<std::uint32_t>(bytes.size()));
    AppendU32(file, 0);
    AppendU32(file, BmpFileHeaderBytes + static_cast<std::uint32_t>(rows));
    file += bytes;
    return QImage::fromData(reinterpret_cast<const uchar*>(file.data()),
                            static_cast<int>(file.size()), "BMP");
}

} // namespace tavmoor
