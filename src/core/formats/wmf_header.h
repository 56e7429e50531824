#pragma once

#include "core/formats/metafile_outline.h"

#include <optional>
#include <string_view>

namespace tavmoor {

/// The header that some wmf files have in front of their own: where they stand, in their own units.
struct WmfPlacing {
    MetafileFrame frame;
    PixelSize size;
};

/// @return nothing for a file without that header, or when it tells no size
std::optional<WmfPlacing> ReadWmfPlacing(std::string_view wmf);

/// The outline of a wmf with or without the placing header; nothing for a damaged file, such as one
/// whose records do not come to their end within it.
std::optional<MetafileOutline> OutlineWmf(std::string_view wmf);

/// The record that begins at a position, its size in front; empty when none lies there as a whole.
std::string_view WmfRecordAt(std::string_view wmf, std::size_t at);

} // namespace tavmoor
