#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tavmoor {

/// One of the pictures in an icon or cursor.
struct IconPicture {
    int index = 0;
    std::string_view bytes;
};

/// The picture whose width in pixels is nearest to `side`, the larger of two; nothing when there
/// is none, or when one lies beyond the end of the file.
std::optional<IconPicture> NearestIconPicture(std::string_view icon, int side);

} // namespace tavmoor
