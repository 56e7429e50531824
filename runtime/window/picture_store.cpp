#include "window/picture_store.h"

#include "core/formats/icon_directory.h"
#include "core/formats/picture_format.h"
#include "menu/picture_size.h"

#include <optional>

#include <shlwapi.h>

namespace tavmoor {

namespace {

struct ReleaseStream {
    void operator()(IStream* stream) const { stream->Release(); }
};

/// A decoded picture with the bytes that it still reads from.
struct Decoded {
    std::unique_ptr<IStream, ReleaseStream> stream;
    std::unique_ptr<Gdiplus::Bitmap> bitmap;
};

bool HasReasonableSize(Gdiplus::Bitmap& bitmap) {
    const long long width = bitmap.GetWidth();
    const long long height = bitmap.GetHeight();
    return width > 0 && height > 0 && width <= MostPicturePixels / height;
}

/// Drawing commands become pixels once, in their own size, so that they are treated as all others.
std::unique_ptr<Gdiplus::Bitmap> Rasterize(IStream& stream, Extent size) {
    Gdiplus::Image drawing(&stream);
    auto bitmap = std::make_unique<Gdiplus::Bitmap>(size.width, size.height, PixelFormat32bppPARGB);
    Gdiplus::Graphics graphics(bitmap.get());
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    const Gdiplus::Status status = graphics.DrawImage(&drawing, 0, 0, size.width, size.height);
    return status == Gdiplus::Ok ? std::move(bitmap) : nullptr;
}

std::optional<Decoded> Decode(AutorunDisc& disc, const std::string& name) {
    auto bytes = disc.ReadFile(name);
    const auto size = bytes ? ReadPictureSize(*bytes) : std::nullopt;
    if (!size) {
        return std::nullopt;
    }
    if (const auto icon = WidestIconPicture(*bytes)) {
        bytes = SinglePictureFile(*icon);
    }
    Decoded decoded;
    decoded.stream.reset(SHCreateMemStream(reinterpret_cast<const BYTE*>(bytes->data()),
                                           static_cast<UINT>(bytes->size())));
    if (!decoded.stream) {
        return std::nullopt;
    }
    if (IsMetafile(PictureFormatOf(*bytes))) {
        decoded.bitmap = Rasterize(*decoded.stream, *size);
    } else {
        decoded.bitmap.reset(Gdiplus::Bitmap::FromStream(decoded.stream.get()));
    }
    if (!decoded.bitmap || decoded.bitmap->GetLastStatus() != Gdiplus::Ok ||
        !HasReasonableSize(*decoded.bitmap)) {
        return std::nullopt;
    }
    return decoded;
}

/// The part of a picture that shows when it covers a place of another ratio: its middle.
Box CoveringPart(Extent picture, Extent place) {
    const long long wide = static_cast<long long>(picture.width) * place.height;
    const long long high = static_cast<long long>(picture.height) * place.width;
    if (wide > high) {
        const int width = static_cast<int>(high / place.height);
        return {(picture.width - width) / 2, 0, width, picture.height};
    }
    const int height = static_cast<int>(wide / place.width);
    return {0, (picture.height - height) / 2, picture.width, height};
}

std::unique_ptr<Gdiplus::Bitmap> Scale(Gdiplus::Bitmap& picture, Extent size, PictureFit fit) {
    const Extent natural{static_cast<int>(picture.GetWidth()),
                         static_cast<int>(picture.GetHeight())};
    const Box part = fit == PictureFit::Cover ? CoveringPart(natural, size)
                                              : Box{0, 0, natural.width, natural.height};
    auto scaled = std::make_unique<Gdiplus::Bitmap>(size.width, size.height, PixelFormat32bppPARGB);
    Gdiplus::Graphics graphics(scaled.get());
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    Gdiplus::ImageAttributes attributes;
    attributes.SetWrapMode(Gdiplus::WrapModeTileFlipXY); // no dim seam along the edges
    const Gdiplus::Status status =
        graphics.DrawImage(&picture, Gdiplus::Rect(0, 0, size.width, size.height), part.x, part.y,
                           part.width, part.height, Gdiplus::UnitPixel, &attributes);
    return status == Gdiplus::Ok ? std::move(scaled) : nullptr;
}

} // namespace

PictureStore::Entry& PictureStore::Find(const std::string& name) {
    const auto [found, isNew] = entries_.try_emplace(name);
    if (isNew) {
        if (const auto decoded = Decode(disc_, name)) {
            found->second.natural = {static_cast<int>(decoded->bitmap->GetWidth()),
                                     static_cast<int>(decoded->bitmap->GetHeight())};
        }
    }
    return found->second;
}

Extent PictureStore::NaturalSize(const std::string& name) {
    return Find(name).natural;
}

Gdiplus::Bitmap* PictureStore::Scaled(const std::string& name, Extent size, PictureFit fit) {
    Entry& entry = Find(name);
    if (entry.natural.Empty() || size.Empty()) {
        return nullptr;
    }
    if (entry.size != size) {
        entry.size = size;
        const auto decoded = Decode(disc_, name);
        entry.scaled = decoded ? Scale(*decoded->bitmap, size, fit) : nullptr;
    }
    return entry.scaled.get();
}

} // namespace tavmoor
