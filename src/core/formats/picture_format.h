#pragma once

#include <cstdint>
#include <string_view>

namespace tavmoor {

enum class PictureFormat : std::uint8_t { Unknown, Jpeg, Bmp, Gif, Png, Icon, Cursor, Wmf, Emf };

/// The format of a picture file by its content; the file's extension has no say.
PictureFormat PictureFormatOf(std::string_view bytes);

/// True for drawing commands, which have no pixels before they are played.
constexpr bool IsMetafile(PictureFormat format) {
    return format == PictureFormat::Wmf || format == PictureFormat::Emf;
}

/// True for files that hold several pictures to choose from.
constexpr bool IsIcon(PictureFormat format) {
    return format == PictureFormat::Icon || format == PictureFormat::Cursor;
}

} // namespace tavmoor
