#include "services/pictures/picture_loader.h"

#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "core/formats/emf_header.h"
#include "core/formats/icon_directory.h"
#include "core/formats/picture_format.h"
#include "core/formats/png_chunks.h"
#include "core/formats/wmf_header.h"
#include "services/pictures/emf_player.h"
#include "services/pictures/raster_outline.h"
#include "services/pictures/wmf_player.h"

#include <QBuffer>
#include <QImageReader>

#include <array>
#include <string>

namespace tavmoor {

namespace {

constexpr std::uint64_t MostFileBytes = 64'000'000;
constexpr std::uint64_t MostMetafileBytes = 16'000'000;
constexpr qint64 MostMetafilePixels = 16'000'000;

/// A picture file in memory.
struct PictureFile {
    std::string bytes;
    PictureFormat format = PictureFormat::Unknown;
    PictureFault fault = PictureFault::None;
    int index = 0; ///< the one to take of several pictures
};

/// Chooses among the pictures of an icon. One that is a png takes the place of the file: then what
/// holds for a png file holds for it as well.
void TakeIconPicture(PictureFile& file, int side) {
    const auto picture = NearestIconPicture(file.bytes, side);
    if (!picture) {
        file.fault = PictureFault::Damaged;
    } else if (PictureFormatOf(picture->bytes) == PictureFormat::Png) {
        file.bytes = std::string(picture->bytes);
        file.format = PictureFormat::Png;
    } else {
        file.index = picture->index;
        file.bytes[2] = 1; // a cursor is laid out like an icon
    }
}

/// Leaves what is decoded.
void Reduce(PictureFile& file, int iconSide) {
    if (IsIcon(file.format)) {
        TakeIconPicture(file, iconSide);
    }
    if (file.format == PictureFormat::Png && !KeepPixelChunks(file.bytes)) {
        file.fault = PictureFault::Damaged;
    }
}

PictureFile ReadPictureFile(std::string_view path, int iconSide = UsualIconSide) {
    PictureFile file;
    try {
        if (FileLength(path) > MostFileBytes) {
            file.fault = PictureFault::TooLarge;
            return file;
        }
        file.bytes = ReadWholeFile(path);
    } catch (const RuntimeError&) {
        file.fault = PictureFault::Unreadable;
        return file;
    }
    file.format = PictureFormatOf(file.bytes);
    if (file.format == PictureFormat::Unknown) {
        file.fault = PictureFault::UnknownFormat;
    } else if (IsMetafile(file.format) && file.bytes.size() > MostMetafileBytes) {
        file.fault = PictureFault::TooLarge;
    } else {
        Reduce(file, iconSide);
    }
    return file;
}

const char* ReaderName(PictureFormat format) {
    switch (format) {
    case PictureFormat::Jpeg:
        return "jpeg";
    case PictureFormat::Bmp:
        return "bmp";
    case PictureFormat::Gif:
        return "gif";
    case PictureFormat::Png:
        return "png";
    case PictureFormat::Icon:
    case PictureFormat::Cursor:
        return "ico";
    case PictureFormat::Wmf:
    case PictureFormat::Emf:
    case PictureFormat::Unknown:
        break;
    }
    return "";
}

/// A raster picture before it is decoded.
class RasterPicture {
public:
    explicit RasterPicture(const PictureFile& file)
        : outline_(OutlineRaster(file.format, file.bytes)) {
        if (!outline_.whole) {
            return;
        }
        buffer_.setData(
            QByteArray::fromRawData(file.bytes.data(), static_cast<qsizetype>(file.bytes.size())));
        buffer_.open(QIODevice::ReadOnly);
        // Holds also for what a header hides, such as pictures within an icon.
        QImageReader::setAllocationLimit(static_cast<int>(MostPictureBytes >> 20U));
        reader_.setDevice(&buffer_);
        reader_.setFormat(ReaderName(file.format));
        reader_.setAutoDetectImageFormat(false);
        if (file.index > 0) {
            reader_.jumpToImage(file.index);
        }
        size_ = reader_.size();
    }

    [[nodiscard]] PictureFault Fault() const {
        if (!outline_.whole || size_.isEmpty()) {
            return PictureFault::Damaged;
        }
        const qint64 pixels = qint64{size_.width()} * size_.height();
        return pixels > (MostPictureBytes - buffer_.size()) / outline_.bytesPerPixel
                   ? PictureFault::TooLarge
                   : PictureFault::None;
    }
    [[nodiscard]] QSize Size() const { return size_; }
    QImage Decode() { return reader_.read(); }

private:
    RasterOutline outline_;
    QBuffer buffer_;
    QImageReader reader_;
    QSize size_;
};

std::optional<MetafileOutline> OutlineMetafile(const PictureFile& file) {
    return file.format == PictureFormat::Wmf ? OutlineWmf(file.bytes) : OutlineEmf(file.bytes);
}

PictureFault MetafileFault(const std::optional<MetafileOutline>& outline) {
    if (!outline) {
        return PictureFault::Damaged;
    }
    return outline->size.Pixels() > MostMetafilePixels ? PictureFault::TooLarge
                                                       : PictureFault::None;
}

QSize QSizeOf(PixelSize size) {
    return {static_cast<int>(size.width), static_cast<int>(size.height)};
}

PictureResult LoadMetafile(const PictureFile& file) {
    const auto outline = OutlineMetafile(file);
    if (const auto fault = MetafileFault(outline); fault != PictureFault::None) {
        return {{}, fault};
    }
    QImage image(QSizeOf(outline->size), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull()) {
        return {{}, PictureFault::TooLarge};
    }
    image.fill(Qt::transparent);
    const PixelTarget target{image.bits(), image.width(), image.height(), image.bytesPerLine()};
    const bool isPlayed = file.format == PictureFormat::Wmf ? PlayWmf(file.bytes, *outline, target)
                                                            : PlayEmf(file.bytes, *outline, target);
    return isPlayed ? PictureResult{image, PictureFault::None}
                    : PictureResult{{}, PictureFault::Damaged};
}

} // namespace

PictureResult LoadPicture(std::string_view documentPath, int iconSide) {
    const PictureFile file = ReadPictureFile(documentPath, iconSide);
    if (file.fault != PictureFault::None) {
        return {{}, file.fault};
    }
    if (IsMetafile(file.format)) {
        return LoadMetafile(file);
    }
    RasterPicture picture(file);
    if (const auto fault = picture.Fault(); fault != PictureFault::None) {
        return {{}, fault};
    }
    PictureResult result{picture.Decode(), PictureFault::None};
    if (result.image.isNull()) {
        result.fault = PictureFault::Damaged;
    }
    return result;
}

std::optional<QSize> PictureSize(std::string_view documentPath) {
    const PictureFile file = ReadPictureFile(documentPath);
    if (file.fault != PictureFault::None) {
        return std::nullopt;
    }
    if (IsMetafile(file.format)) {
        const auto outline = OutlineMetafile(file);
        return MetafileFault(outline) == PictureFault::None ? std::optional(QSizeOf(outline->size))
                                                            : std::nullopt;
    }
    const RasterPicture picture(file);
    return picture.Fault() == PictureFault::None ? std::optional(picture.Size()) : std::nullopt;
}

QString PictureFaultText(PictureFault fault) {
    static const std::array Texts{
        QString(),
        QStringLiteral("The file cannot be read."),
        QStringLiteral("The file is no picture of a known format."),
        QStringLiteral("The picture is damaged."),
        QStringLiteral("The picture is too large."),
    };
    return Texts.at(static_cast<std::size_t>(fault));
}

} // namespace tavmoor
