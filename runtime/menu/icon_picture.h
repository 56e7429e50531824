#pragma once

#include "menu/geometry.h"

#include <optional>
#include <string>
#include <string_view>

namespace tavmoor {

/// One picture of an icon or a cursor.
struct IconPicture {
    Extent size;
    std::string_view entry; ///< its line in the list of pictures
    std::string_view data;
};

/// The largest picture of an ico or cur file, the last of several; nothing for any other or damaged
/// file. It refers to the bytes.
std::optional<IconPicture> LargestOfIcon(std::string_view bytes);

/// A file with that picture alone, which a decoder cannot miss: an ico file, or a png file where
/// the picture is one.
std::string FileOf(const IconPicture& picture);

} // namespace tavmoor
