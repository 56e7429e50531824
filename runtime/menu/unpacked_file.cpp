#include "menu/unpacked_file.h"

#include "package/package_reader.h"

#include <fstream>
#include <random>
#include <string>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void Fail(const fs::path& path, std::errc reason) {
    throw fs::filesystem_error("unpack", path, std::make_error_code(reason));
}

/// Making a folder tells whether it was there already, so that no other program's is taken.
fs::path MakeFolder() {
    constexpr int attempts = 100;
    std::random_device random;
    fs::path folder;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        folder = fs::temp_directory_path() / ("tavmoor-" + std::to_string(random()));
        if (fs::create_directory(folder)) {
            return folder;
        }
    }
    Fail(folder, std::errc::file_exists);
}

void RemoveIgnoringErrors(const fs::path& folder) {
    std::error_code error;
    fs::remove_all(folder, error);
}

void Unpack(PackageFile& package, const PackageEntry& entry, const fs::path& path,
            const std::function<bool()>& stop) {
    std::ofstream file(path, std::ios::binary);
    package.ReadBlocks(entry, [&](std::span<const char> block) {
        if (stop()) {
            Fail(path, std::errc::operation_canceled);
        }
        file.write(block.data(), static_cast<std::streamsize>(block.size()));
    });
    file.close();
    if (!file) {
        Fail(path, std::errc::io_error);
    }
}

} // namespace

UnpackedFile::UnpackedFile(const fs::path& package, std::string_view name,
                           const std::function<bool()>& stop) {
    PackageFile file(package);
    const PackageEntry* entry = file.Find(name);
    if (entry == nullptr) {
        throw PackageError("The package has no file of that name.");
    }
    folder_ = MakeFolder();
    path_ = folder_ / "sound";
    path_ += fs::path(name).extension();
    try {
        Unpack(file, *entry, path_, stop);
    } catch (...) {
        RemoveIgnoringErrors(folder_);
        throw;
    }
}

UnpackedFile::~UnpackedFile() {
    RemoveIgnoringErrors(folder_);
}

} // namespace tavmoor
