#pragma once

#include "core/formats/metafile_outline.h"

#include <optional>
#include <string_view>

namespace tavmoor {

/// The natural size that the head of an emf tells; the records are not looked at.
std::optional<PixelSize> ReadEmfSize(std::string_view emf);

/// The outline of an emf; nothing for a damaged file, such as one whose records do not come to
/// their end within it.
std::optional<MetafileOutline> OutlineEmf(std::string_view emf);

} // namespace tavmoor
