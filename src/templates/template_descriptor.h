#pragma once

#include <string>
#include <string_view>

namespace tavmoor {

/// The display name in a template's descriptor; "" when it has none or cannot be read.
std::string TemplateDisplayName(std::string_view descriptorPath);

/// True when the descriptor switches the visual editor on: `Enable` is exactly "1".
bool TemplateAcceptsEditor(std::string_view descriptorPath);

/// `TemplateCommandLimit`: how many additional commands the template shows; 0 for none. It is told
/// to the user and limits nothing else.
int ReadCommandLimit(std::string_view descriptorPath);

/// What the additional commands window says about that limit. The sentence for 0 ends with
/// `updateHint`, which sends the user to the maker for an update.
std::string CommandLimitText(int limit, std::string_view updateHint);

} // namespace tavmoor
