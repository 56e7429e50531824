#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tavmoor {

/// A rectangle in the units of a metafile; an extent may be negative.
struct MetafileFrame {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

/// What a metafile tells once all its records were walked over and found to lie in the file.
struct MetafileOutline {
    std::size_t records = 0;     ///< position of the first record that draws
    std::size_t recordCount = 0; ///< the last one, which ends the list, included
    int width = 0;               ///< natural size in pixels, at 96 to the inch
    int height = 0;
    MetafileFrame frame; ///< of wmf: what the natural size shows
};

/// The outline of a wmf with or without the placing header; nothing for a damaged file, such as one
/// whose records do not come to their end within it.
std::optional<MetafileOutline> OutlineWmf(std::string_view bytes);

/// The same for an emf.
std::optional<MetafileOutline> OutlineEmf(std::string_view bytes);

} // namespace tavmoor
