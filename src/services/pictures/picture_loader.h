#pragma once

#include <QImage>
#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>
#include <string_view>

namespace tavmoor {

enum class PictureFault : std::uint8_t {
    None,
    Unreadable,    ///< no file there, or it cannot be read
    UnknownFormat, ///< the content is none of the picture formats
    Damaged,       ///< cut off, or contradicting itself
    TooLarge,      ///< it would take more memory than a picture may
};

struct PictureResult {
    QImage image; ///< null when there is a fault; its size is the natural size in pixels
    PictureFault fault = PictureFault::None;
};

/// The memory that loading a picture may take, the file's own bytes included.
inline constexpr qint64 MostPictureBytes = 192'000'000;

inline constexpr int UsualIconSide = 32;

/// Loads a jpg, bmp, gif, png, ico, cur, wmf or emf file, told by its content. Of an animation the
/// first picture, of an icon the one whose width in pixels is nearest to `iconSide`, the larger of
/// two. Files come from anywhere: nothing is decoded before its header and length are found to fit,
/// and no other file is opened for it.
PictureResult LoadPicture(std::string_view documentPath, int iconSide = UsualIconSide);

/// The natural size in pixels without decoding the picture; nothing for what LoadPicture refuses
/// by its header.
std::optional<QSize> PictureSize(std::string_view documentPath);

/// What is wrong, for a tooltip or a report; "" for no fault.
QString PictureFaultText(PictureFault fault);

} // namespace tavmoor
