#include "menu/picture_size.h"

#include "core/formats/bmp_header.h"
#include "core/formats/emf_header.h"
#include "core/formats/gif_header.h"
#include "core/formats/icon_directory.h"
#include "core/formats/jpg_header.h"
#include "core/formats/picture_format.h"
#include "core/formats/wmf_header.h"

namespace tavmoor {

namespace {

template <typename Header>
std::optional<PixelSize> SizeIn(const std::optional<Header>& header) {
    return header ? std::optional(header->size) : std::nullopt;
}

/// A frame with its sides swapped is no place to draw in.
std::optional<PixelSize> PlacedSize(std::string_view wmf) {
    const auto placing = ReadWmfPlacing(wmf);
    const bool isUpright = placing && placing->frame.width > 0 && placing->frame.height > 0;
    return isUpright ? std::optional(placing->size) : std::nullopt;
}

std::optional<PixelSize> SizeOf(std::string_view bytes) {
    switch (PictureFormatOf(bytes)) {
    case PictureFormat::Jpeg:
        return SizeIn(ReadJpgFrame(bytes));
    case PictureFormat::Bmp:
        return SizeIn(ReadBmpHeader(bytes));
    case PictureFormat::Gif:
        return SizeIn(ReadGifHeader(bytes));
    case PictureFormat::Icon:
    case PictureFormat::Cursor:
        return SizeIn(WidestIconPicture(bytes));
    case PictureFormat::Wmf:
        return PlacedSize(bytes);
    case PictureFormat::Emf:
        return ReadEmfSize(bytes);
    case PictureFormat::Png:
    case PictureFormat::Unknown:
        break;
    }
    return std::nullopt;
}

} // namespace

std::optional<Extent> ReadPictureSize(std::string_view bytes) {
    const auto size = SizeOf(bytes);
    if (!size || size->IsEmpty() || size->Pixels() > MostPicturePixels) {
        return std::nullopt;
    }
    return Extent{static_cast<int>(size->width), static_cast<int>(size->height)};
}

} // namespace tavmoor
