#include "menu/picture_size.h"

#include "menu/icon_picture.h"
#include "menu/little_endian.h"

#include <algorithm>
#include <cstdint>

namespace tavmoor {

namespace {

/// Reads numbers of a file; what lies beyond its end reads as 0.
class Bytes {
public:
    explicit Bytes(std::string_view bytes) : bytes_(bytes) {}

    [[nodiscard]] std::uint32_t At(std::size_t position) const { return ByteAt(bytes_, position); }
    [[nodiscard]] std::uint32_t Little16(std::size_t position) const {
        return tavmoor::Little16(bytes_, position);
    }
    [[nodiscard]] std::uint32_t Big16(std::size_t position) const {
        return At(position) << 8 | At(position + 1);
    }
    [[nodiscard]] std::int32_t Little32(std::size_t position) const {
        return static_cast<std::int32_t>(tavmoor::Little32(bytes_, position));
    }
    [[nodiscard]] std::string_view All() const { return bytes_; }
    [[nodiscard]] std::size_t Size() const { return bytes_.size(); }
    [[nodiscard]] bool StartsWith(std::string_view start) const {
        return bytes_.starts_with(start);
    }

private:
    std::string_view bytes_;
};

struct Measure {
    long long width = 0;
    long long height = 0;
};

Measure BitmapSize(const Bytes& bytes) {
    constexpr std::size_t header = 14;
    constexpr std::int32_t oldHeaderSize = 12;
    if (bytes.Little32(header) == oldHeaderSize) {
        return {bytes.Little16(header + 4), bytes.Little16(header + 6)};
    }
    // A negative height says that the rows run from the top down.
    const long long height = bytes.Little32(header + 8);
    return {bytes.Little32(header + 4), height < 0 ? -height : height};
}

std::size_t ColorTableBytes(std::uint32_t flags) {
    return (flags & 0x80U) != 0 ? std::size_t{3} << ((flags & 7U) + 1) : 0;
}

std::size_t BehindSubBlocks(const Bytes& bytes, std::size_t position) {
    while (bytes.At(position) != 0) {
        position += 1 + bytes.At(position);
    }
    return position + 1;
}

/// The larger of the screen and the first frame, since decoders differ in which one they fill.
Measure GifSize(const Bytes& bytes) {
    constexpr std::uint32_t extension = 0x21;
    constexpr std::uint32_t image = 0x2C;
    std::size_t position = 13 + ColorTableBytes(bytes.At(10));
    while (bytes.At(position) == extension) {
        position = BehindSubBlocks(bytes, position + 2);
    }
    if (bytes.At(position) != image) {
        return {};
    }
    return {std::max<long long>(bytes.Little16(6),
                                bytes.Little16(position + 1) + bytes.Little16(position + 5)),
            std::max<long long>(bytes.Little16(8),
                                bytes.Little16(position + 3) + bytes.Little16(position + 7))};
}

bool IsFrameMarker(std::uint32_t marker) {
    constexpr std::uint32_t huffmanTables = 0xC4;
    constexpr std::uint32_t reserved = 0xC8;
    constexpr std::uint32_t arithmeticTables = 0xCC;
    return marker >= 0xC0 && marker <= 0xCF && marker != huffmanTables && marker != reserved &&
           marker != arithmeticTables;
}

Measure JpegSize(const Bytes& bytes) {
    std::size_t position = 2;
    while (position < bytes.Size() && bytes.At(position) == 0xFF) {
        const std::uint32_t marker = bytes.At(position + 1);
        if (marker == 0xFF) {
            ++position; // fill byte
        } else if (IsFrameMarker(marker)) {
            return {bytes.Big16(position + 7), bytes.Big16(position + 5)};
        } else {
            position += 2 + std::max<std::size_t>(bytes.Big16(position + 2), 2);
        }
    }
    return {};
}

constexpr long long PixelsPerInch = 96;

/// The frame of an emf file is told in hundredths of a millimetre.
Measure EnhancedMetafileSize(const Bytes& bytes) {
    constexpr long long unitsPerInch = 2540;
    const auto pixels = [&](std::size_t from, std::size_t to) {
        const long long length = static_cast<long long>(bytes.Little32(to)) - bytes.Little32(from);
        return (length * PixelsPerInch + unitsPerInch / 2) / unitsPerInch;
    };
    return {pixels(24, 32), pixels(28, 36)};
}

/// A placeable wmf file tells its own units to the inch.
Measure PlaceableMetafileSize(const Bytes& bytes) {
    const long long unitsPerInch = bytes.Little16(14);
    if (unitsPerInch == 0) {
        return {};
    }
    const auto pixels = [&](std::size_t from, std::size_t to) {
        const int length = static_cast<std::int16_t>(bytes.Little16(to)) -
                           static_cast<std::int16_t>(bytes.Little16(from));
        return (length * PixelsPerInch + unitsPerInch / 2) / unitsPerInch;
    };
    return {pixels(6, 10), pixels(8, 12)};
}

constexpr std::string_view PlaceableHead = "\xD7\xCD\xC6\x9A";

bool IsEnhancedMetafile(std::string_view bytes) {
    constexpr std::size_t signature = 40;
    return bytes.starts_with(std::string_view("\1\0\0\0", 4)) && bytes.size() > signature &&
           bytes.substr(signature).starts_with(" EMF");
}

Measure SizeOf(const Bytes& bytes) {
    if (const auto icon = LargestOfIcon(bytes.All())) {
        return {icon->size.width, icon->size.height};
    }
    if (bytes.StartsWith(PlaceableHead)) {
        return PlaceableMetafileSize(bytes);
    }
    if (IsEnhancedMetafile(bytes.All())) {
        return EnhancedMetafileSize(bytes);
    }
    if (bytes.StartsWith("BM")) {
        return BitmapSize(bytes);
    }
    if (bytes.StartsWith("GIF8")) {
        return GifSize(bytes);
    }
    return bytes.StartsWith("\xFF\xD8\xFF") ? JpegSize(bytes) : Measure{};
}

} // namespace

std::optional<Extent> ReadPictureSize(std::string_view bytes) {
    const Measure size = SizeOf(Bytes(bytes));
    if (size.width <= 0 || size.height <= 0 || size.width > MostPicturePixels / size.height) {
        return std::nullopt;
    }
    return Extent{static_cast<int>(size.width), static_cast<int>(size.height)};
}

bool IsMetafile(std::string_view bytes) {
    return bytes.starts_with(PlaceableHead) || IsEnhancedMetafile(bytes);
}

} // namespace tavmoor
