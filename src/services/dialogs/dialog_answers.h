#pragma once

#include "core/document/project_document.h"
#include "services/values/font_spec.h"

#include <optional>
#include <string>

namespace tavmoor {

class CommonDialog;

// What a dialog gives whose properties the caller has set; nothing when it was cancelled, whatever
// its CancelError says. Paths have document form.

/// Lets an existing file be chosen.
std::optional<std::string> AskForFile(CommonDialog& dialog);

/// Lets a file be named that is to be written.
std::optional<std::string> AskForNewFile(CommonDialog& dialog);

std::optional<std::string> AskForFolder(CommonDialog& dialog);

std::optional<ColorValue> AskForColor(CommonDialog& dialog);

struct PickedFont {
    FontSpec font; ///< its size in stored form
    ColorValue color = 0;
};

std::optional<PickedFont> AskForFont(CommonDialog& dialog);

} // namespace tavmoor
