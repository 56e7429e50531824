#include "core/disk/durable_file.h"

#include "core/disk/fresh_file.h"

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

/// Where a link at the target leads in the end, also when nothing lies there yet.
fs::path FollowLinks(fs::path target) {
    constexpr int most = 40; // as systems themselves follow
    std::error_code error;
    for (int i = 0; i < most && fs::is_symlink(fs::symlink_status(target, error)); ++i) {
        target = target.parent_path() / fs::read_symlink(target, error);
    }
    return target;
}

std::error_code Objection(const fs::path& target) {
    std::error_code unknown;
    const fs::file_status status = fs::status(target, unknown);
    if (!fs::exists(status)) {
        return {};
    }
    // A device or a pipe stays one; a protected file was not meant to be written over.
    const bool isWritable = (status.permissions() & fs::perms::owner_write) != fs::perms::none;
    return fs::is_regular_file(status) && isWritable
               ? std::error_code()
               : std::make_error_code(std::errc::permission_denied);
}

} // namespace

std::error_code ReplaceFileDurably(const fs::path& target, std::string_view bytes) {
    const fs::path real = FollowLinks(target);
    if (const std::error_code error = Objection(real)) {
        return error;
    }
    const fs::path folder = real.has_parent_path() ? real.parent_path() : fs::path(".");
    DeleteLeftFreshFilesIgnoringErrors(folder);
    FreshFile file;
    if (const std::error_code error = file.Create(folder, bytes.size())) {
        return error;
    }
    if (const std::error_code error = file.Append(bytes)) {
        return error;
    }
    if (const std::error_code error = file.TakeRightsOf(real)) {
        return error;
    }
    if (const std::error_code error = file.Flush()) {
        return error;
    }
    if (const std::error_code error = file.PlaceAt(real)) {
        return error;
    }
    FlushFolderIgnoringErrors(folder);
    return {};
}

} // namespace tavmoor
