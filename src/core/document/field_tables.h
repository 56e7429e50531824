#pragma once

#include "core/document/field_block.h"

namespace tavmoor {

// The parts of the field table, in file order; project_fields.cpp joins them.

std::span<const FieldBlock> TitleBlocks();   ///< base settings, titles
std::span<const FieldBlock> CommandBlocks(); ///< commands, menu titles
std::span<const FieldBlock> ScreenBlocks();  ///< sound, screens, fonts, effects
std::span<const FieldBlock> MessageBlocks(); ///< start message, expiry date, shortcuts
std::span<const FieldBlock> CanvasBlocks();  ///< canvas, texts, videos

/// A block of single fields.
constexpr FieldBlock Single(std::string_view section, std::span<const FieldSpec> fields) {
    FieldBlock block;
    block.section = section;
    block.fields = fields;
    return block;
}

/// A table whose rows `first` to `last` stand in the files and are all cleared by "new project".
constexpr FieldBlock Table(std::string_view section, std::span<const FieldSpec> fields,
                           KeyForm form, std::size_t first, std::size_t last) {
    FieldBlock block = Single(section, fields);
    block.keyForm = form;
    block.first = block.resetFirst = first;
    block.last = block.resetLast = block.packageLast = last;
    return block;
}

} // namespace tavmoor
