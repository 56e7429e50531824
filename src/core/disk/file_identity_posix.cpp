#include "core/disk/file_identity.h"

#include "core/text/text_case.h"

#include <algorithm>
#include <sys/stat.h>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

FileIdentity IdentityFrom(const struct stat& entry, const fs::path& path) {
    if (entry.st_ino != 0) {
        return {entry.st_dev, entry.st_ino, {}};
    }
    std::error_code error;
    std::string canonical = fs::weakly_canonical(path, error).string();
    std::transform(canonical.begin(), canonical.end(), canonical.begin(), LowerCase);
    return {entry.st_dev, 0, canonical};
}

} // namespace

std::optional<FileIdentity> IdentityOf(const fs::path& path) {
    struct stat entry {};
    return stat(path.c_str(), &entry) == 0 ? std::optional(IdentityFrom(entry, path))
                                           : std::nullopt;
}

std::optional<FileIdentity> IdentityOfEntry(const fs::path& path) {
    struct stat entry {};
    return lstat(path.c_str(), &entry) == 0 ? std::optional(IdentityFrom(entry, path))
                                            : std::nullopt;
}

} // namespace tavmoor
