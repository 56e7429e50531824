#include "menu/icon_picture.h"

#include "menu/little_endian.h"

namespace tavmoor {

namespace {

constexpr std::string_view IconHead("\0\0\1\0", 4);
constexpr std::string_view CursorHead("\0\0\2\0", 4);
constexpr std::size_t HeadBytes = 6;
constexpr std::size_t EntryBytes = 16;
/// Where an entry says how long its picture is and where it begins; both take four bytes.
constexpr std::size_t LengthInEntry = 8;
constexpr std::size_t OffsetInEntry = 12;

/// A side of 256 is stored as 0.
int Side(std::uint32_t stored) {
    constexpr int largest = 256;
    return stored == 0 ? largest : static_cast<int>(stored);
}

std::optional<IconPicture> PictureAt(std::string_view bytes, std::size_t position) {
    if (position + EntryBytes > bytes.size()) {
        return std::nullopt;
    }
    const std::string_view entry = bytes.substr(position, EntryBytes);
    const std::size_t length = Little32(entry, LengthInEntry);
    const std::size_t offset = Little32(entry, OffsetInEntry);
    if (offset > bytes.size() || length > bytes.size() - offset) {
        return std::nullopt;
    }
    return IconPicture{
        {Side(ByteAt(entry, 0)), Side(ByteAt(entry, 1))}, entry, bytes.substr(offset, length)};
}

} // namespace

std::optional<IconPicture> LargestOfIcon(std::string_view bytes) {
    if (!bytes.starts_with(IconHead) && !bytes.starts_with(CursorHead)) {
        return std::nullopt;
    }
    std::optional<IconPicture> largest;
    for (std::size_t i = 0; i < Little16(bytes, IconHead.size()); ++i) {
        const auto picture = PictureAt(bytes, HeadBytes + i * EntryBytes);
        if (!picture) {
            return std::nullopt;
        }
        if (!largest || picture->size.width >= largest->size.width) {
            largest = picture;
        }
    }
    return largest;
}

std::string FileOf(const IconPicture& picture) {
    if (picture.data.starts_with("\x89PNG")) {
        return std::string(picture.data);
    }
    std::string file(IconHead);
    file += {'\1', '\0'};
    file += picture.entry.substr(0, OffsetInEntry);
    file += {static_cast<char>(HeadBytes + EntryBytes), '\0', '\0', '\0'};
    file += picture.data;
    return file;
}

} // namespace tavmoor
