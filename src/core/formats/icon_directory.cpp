#include "core/formats/icon_directory.h"

#include "core/formats/byte_view.h"
#include "core/formats/picture_format.h"

#include <cstdlib>

namespace tavmoor {

namespace {

constexpr std::size_t HeadBytes = 6;
constexpr std::size_t EntryBytes = 16;
/// Where an entry says at which position of the file its picture begins.
constexpr std::size_t PositionInEntry = 12;

/// A side of 256 is stored as 0.
int Side(std::uint8_t stored) {
    constexpr int Largest = 256;
    return stored == 0 ? Largest : stored;
}

std::optional<IconPicture> PictureAt(const ByteView& view, int index) {
    const std::size_t at = HeadBytes + EntryBytes * static_cast<std::size_t>(index);
    const std::size_t length = view.U32(at + 8);
    const std::size_t begin = view.U32(at + PositionInEntry);
    if (!view.Has(at, EntryBytes) || !view.Has(begin, length) || length == 0) {
        return std::nullopt;
    }
    return IconPicture{index,
                       {Side(view.U8(at)), Side(view.U8(at + 1))},
                       view.Bytes(at, EntryBytes),
                       view.Bytes(begin, length)};
}

/// @param isBetter tells whether the first of two pictures is to be taken instead of the second
template <typename IsBetter>
std::optional<IconPicture> Choose(std::string_view icon, const IsBetter& isBetter) {
    if (!IsIcon(PictureFormatOf(icon))) {
        return std::nullopt;
    }
    const ByteView view(icon);
    std::optional<IconPicture> chosen;
    const int count = view.U16(4);
    for (int i = 0; i < count; ++i) {
        const auto picture = PictureAt(view, i);
        if (!picture) {
            return std::nullopt;
        }
        if (!chosen || isBetter(*picture, *chosen)) {
            chosen = picture;
        }
    }
    return chosen;
}

} // namespace

std::optional<IconPicture> NearestIconPicture(std::string_view icon, int side) {
    return Choose(icon, [side](const IconPicture& picture, const IconPicture& chosen) {
        const std::int64_t farther =
            std::llabs(picture.size.width - side) - std::llabs(chosen.size.width - side);
        return farther < 0 || (farther == 0 && picture.size.width > chosen.size.width);
    });
}

std::optional<IconPicture> WidestIconPicture(std::string_view icon) {
    return Choose(icon, [](const IconPicture& picture, const IconPicture& chosen) {
        return picture.size.width >= chosen.size.width;
    });
}

std::string SinglePictureFile(const IconPicture& picture) {
    if (PictureFormatOf(picture.bytes) == PictureFormat::Png) {
        return std::string(picture.bytes);
    }
    std::string file("\0\0\1\0\1\0", HeadBytes);
    file += picture.entry.substr(0, PositionInEntry);
    file += {static_cast<char>(HeadBytes + EntryBytes), '\0', '\0', '\0'};
    file += picture.bytes;
    return file;
}

} // namespace tavmoor
