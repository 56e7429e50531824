#include "services/fields/disc_target.h"

#include "core/text/path_text.h"
#include "services/fields/field_pickers.h"

namespace tavmoor {

std::string DiscTarget(std::string_view path, std::string_view cdFolder) {
    // A folder beside it whose name only begins alike lies outside.
    const bool inside =
        !cdFolder.empty() && path.starts_with(cdFolder) &&
        (cdFolder.ends_with('\\') || path.substr(cdFolder.size()).starts_with('\\'));
    return inside ? RelativeToCdFolder(path, cdFolder) : std::string(path);
}

std::optional<std::string> PickDiscTarget(QWidget& owner, const std::string& cdFolder) {
    const auto path = PickFile(owner, {"Choose files to run/open...", AllFilesFilter, cdFolder});
    return path ? std::optional(DiscTarget(*path, cdFolder)) : std::nullopt;
}

} // namespace tavmoor
