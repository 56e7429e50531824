#include "core/formats/icon_directory.h"

#include "core/formats/byte_view.h"

#include <cstdlib>

namespace tavmoor {

std::optional<IconPicture> NearestIconPicture(std::string_view icon, int side) {
    constexpr std::size_t EntryBytes = 16;
    const ByteView view(icon);
    std::optional<IconPicture> nearest;
    int nearestWidth = 0;
    const int count = view.U16(4);
    for (int i = 0; i < count; ++i) {
        const std::size_t entry = 6 + EntryBytes * static_cast<std::size_t>(i);
        const std::size_t length = view.U32(entry + 8);
        const std::size_t begin = view.U32(entry + 12);
        if (!view.Has(begin, length) || length == 0) {
            return std::nullopt;
        }
        const int width = view.U8(entry) == 0 ? 256 : view.U8(entry);
        const int farther = std::abs(width - side) - std::abs(nearestWidth - side);
        if (!nearest || farther < 0 || (farther == 0 && width > nearestWidth)) {
            nearest = IconPicture{i, view.Bytes(begin, length)};
            nearestWidth = width;
        }
    }
    return nearest;
}

} // namespace tavmoor
