#pragma once

#include <QImage>

#include <string_view>

namespace tavmoor {

/// Decodes a picture without a file's header, as metafiles hold them.
/// @param pixels how many may still be decoded; taken off here
/// @return a null picture for a damaged one, or one with too many pixels
QImage DecodeDeviceBitmap(std::string_view bytes, qint64& pixels);

} // namespace tavmoor
