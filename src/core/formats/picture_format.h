#pragma once

#include <cstdint>
#include <string_view>

namespace tavmoor {

enum class PictureFormat : std::uint8_t { Unknown, Jpeg, Bmp, Gif, Png, Icon, Cursor, Wmf, Emf };

/// The format of a picture file by its content; the file's extension has no say.
PictureFormat PictureFormatOf(std::string_view bytes);

} // namespace tavmoor
