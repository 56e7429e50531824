#pragma once

#include <optional>
#include <string>
#include <string_view>

class QWidget;

namespace tavmoor {

// The targets of commands: files of the disc, pages and mail addresses. Paths have document form.

/// What a command stores for a chosen file: for one that lies in `cdFolder`, by exact comparison of
/// the texts, its path on the disc, which begins with a backslash unless `cdFolder` ends in one;
/// the whole path for any other.
std::string DiscTarget(std::string_view path, std::string_view cdFolder);

/// Lets a target be chosen, beginning in `cdFolder`; its name is not checked.
/// @return what the command stores; nothing when the user cancelled
std::optional<std::string> PickDiscTarget(QWidget& owner, const std::string& cdFolder);

} // namespace tavmoor
