#pragma once

#include "core/formats/pixel_size.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tavmoor {

/// One of the pictures in an icon or cursor. It refers to the file's bytes.
struct IconPicture {
    int index = 0;
    PixelSize size;         ///< as the directory tells it
    std::string_view entry; ///< its line in the directory
    std::string_view bytes; ///< a bitmap without a file header, or a png
};

// Both give nothing for a file that is no icon or cursor, has no picture, or has one that is empty
// or does not lie in the file.

/// The picture whose width in pixels is nearest to `side`, the larger of two, the first of several.
std::optional<IconPicture> NearestIconPicture(std::string_view icon, int side);

/// The widest picture, the last of several.
std::optional<IconPicture> WidestIconPicture(std::string_view icon);

/// A file with that picture alone, which a decoder cannot miss: an icon, or a png where the picture
/// is one.
std::string SinglePictureFile(const IconPicture& picture);

} // namespace tavmoor
