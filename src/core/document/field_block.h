#pragma once

#include "core/document/field_spec.h"

#include <span>

namespace tavmoor {

/// How the number of a row stands in a key: not at all, "addname0", "DugmeX(0)".
enum class KeyForm : std::uint8_t { Single, Suffix, Parentheses };

/// Which rows of a table the writers write.
enum class WriteRows : std::uint8_t {
    All,
    UntilFirstEmpty, ///< up to the first row whose first field is ""
    LiveButtons,
    VisibleTexts,
    Commands, ///< one row for each slot in use, numbered from 0; see the writer
};

/// How far the reader goes in a table.
enum class ReadRows : std::uint8_t {
    All,
    UntilFirstEmpty, ///< stops at the first row whose first field is ""
    FirstAnyway,     ///< the same, but row 0 is passed over when it is empty
    SkipUntitled,    ///< passes over the rest of a row whose first field is ""
};

/// A run of fields that stand together in a section: single ones, or the rows of a table. The
/// blocks of all sections, in order, are the file.
struct FieldBlock {
    std::string_view section;
    std::span<const FieldSpec> fields;
    KeyForm keyForm = KeyForm::Single;
    std::size_t first = 0; ///< rows that the files hold
    std::size_t last = 0;
    std::size_t resetFirst = 0; ///< rows that "new project" clears
    std::size_t resetLast = 0;
    std::size_t packageLast = 0; ///< last row whose file goes into the package
    WriteRows writeRows = WriteRows::All;
    ReadRows readRows = ReadRows::All;
    bool inConfiguration = true;
    std::optional<FieldAccess> writtenWhen; ///< a flag without which no row is written
};

/// The place of the font files in the package, behind all others.
inline constexpr int FontPackageOrder = 12;

} // namespace tavmoor
