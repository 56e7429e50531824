#include "services/pictures/raster_outline.h"

#include "core/formats/bmp_header.h"
#include "core/formats/gif_header.h"
#include "core/formats/jpg_header.h"

namespace tavmoor {

namespace {

constexpr std::uint32_t PlainPixel = 4;
/// A 16-bit png, a gif with the screen before the frame, an icon before the mask is laid in.
constexpr std::uint32_t DoublePixel = 8;
/// A jpg in several scans: the decoder keeps every component of every pixel until the last one.
constexpr std::uint32_t CoefficientBytes = 2;

RasterOutline JpgRaster(std::string_view bytes) {
    // Pictures have some 10. Each costs a pass over the whole picture, however short it is.
    constexpr int MostScans = 100;
    const JpgOutline jpg = OutlineJpg(bytes);
    return {jpg.isEnded && jpg.scans > 0 && jpg.scans <= MostScans,
            PlainPixel + (jpg.isInSeveralScans ? CoefficientBytes * jpg.components : 0)};
}

} // namespace

RasterOutline OutlineRaster(PictureFormat format, std::string_view bytes) {
    switch (format) {
    case PictureFormat::Jpeg:
        return JpgRaster(bytes);
    case PictureFormat::Bmp: {
        const auto bmp = ReadBmpHeader(bytes);
        return {bmp && bmp->isWhole, PlainPixel};
    }
    case PictureFormat::Gif: {
        const auto gif = ReadGifHeader(bytes);
        return {gif && gif->isWhole, DoublePixel};
    }
    case PictureFormat::Icon:
    case PictureFormat::Cursor:
    case PictureFormat::Png:
        // Their decoders find what is missing by themselves.
        return {true, DoublePixel};
    case PictureFormat::Wmf:
    case PictureFormat::Emf:
    case PictureFormat::Unknown:
        break;
    }
    return {};
}

} // namespace tavmoor
