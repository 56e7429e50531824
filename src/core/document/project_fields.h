#pragma once

#include "core/document/field_block.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tavmoor {

/// All blocks in the order of the project file; the reader and the runtime configuration follow it.
std::span<const FieldBlock> ProjectBlocks();

/// A field of one row.
struct FieldPlace {
    const FieldBlock* block = nullptr;
    const FieldSpec* field = nullptr;
    std::size_t row = 0;

    [[nodiscard]] ValueRef Edit(ProjectDocument& document) const {
        return field->access.edit(document, row);
    }
    [[nodiscard]] ConstValueRef Read(const ProjectDocument& document) const {
        return field->access.read(document, row);
    }
};

/// The field of a section and key, such as "Napredni sabloni" and "DugmeX(3)", without regard to
/// case; nothing when no file has such a field. Used where a field is known by its
/// name alone.
std::optional<FieldPlace> FindField(std::string_view section, std::string_view key);

/// What stands behind the name in the keys of a row: "", "3" or "(3)".
std::string KeySuffix(KeyForm form, std::size_t row);

/// The key of a field as it stands in the project file, with the number of its row.
std::string KeyOf(const FieldPlace& place);

/// The paths of all package files that the document names, in package order, with empty ones and
/// duplicates left out, from the files of `firstOrder` to those of `lastOrder`.
std::vector<std::string> PackageFilesOf(const ProjectDocument& document, int firstOrder,
                                        int lastOrder);

} // namespace tavmoor
