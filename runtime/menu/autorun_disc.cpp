#include "menu/autorun_disc.h"

#include "core/document/project_reader.h"
#include "core/document/project_reset.h"
#include "core/files/profile_file.h"
#include "core/text/text_case.h"
#include "package/package_format.h"

#include <algorithm>
#include <array>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

constexpr const char* DamagedMenu = "The menu in the file Autorun.arn is damaged.";
constexpr std::uint64_t MostConfigurationBytes = std::uint64_t{16} << 20U;
constexpr std::uint64_t MostFileBytes = std::uint64_t{192} << 20U;

bool IsPackageName(const fs::path& name) {
    const std::u8string text = name.u8string();
    return EqualWithoutCase({reinterpret_cast<const char*>(text.data()), text.size()},
                            package_format::PackageName);
}

/// A disc burnt in another letter case is looked through, since not every file system ignores it.
fs::path FindPackage(const fs::path& folder) {
    fs::path path = folder / package_format::PackageName;
    std::error_code error;
    if (fs::exists(path, error)) {
        return path;
    }
    fs::directory_iterator entry(folder, error);
    for (const fs::directory_iterator end; !error && entry != end; entry.increment(error)) {
        if (IsPackageName(entry->path().filename())) {
            return entry->path();
        }
    }
    throw DiscError("The file Autorun.arn does not lie beside this program.");
}

bool IsFontFile(std::string_view name) {
    constexpr std::array<std::string_view, 4> endings{".ttf", ".otf", ".ttc", ".fon"};
    return std::any_of(endings.begin(), endings.end(),
                       [&](std::string_view ending) { return EndsWithoutCase(name, ending); });
}

std::unique_ptr<PackageFile> OpenPackage(const fs::path& path) {
    try {
        return std::make_unique<PackageFile>(path);
    } catch (const PackageError& error) {
        throw DiscError(std::string("The file Autorun.arn cannot be read.\n\n") + error.what());
    }
}

std::string ReadConfiguration(PackageFile& package) {
    const PackageEntry* entry = package.Find(package_format::ConfigurationName);
    if (entry == nullptr) {
        throw DiscError("The file Autorun.arn holds no menu.");
    }
    if (entry->size > MostConfigurationBytes) {
        throw DiscError(DamagedMenu);
    }
    try {
        return package.Read(*entry);
    } catch (const PackageError& error) {
        throw DiscError(std::string("The file Autorun.arn cannot be read.\n\n") + error.what());
    }
}

} // namespace

AutorunDisc::AutorunDisc(fs::path folder)
    : folder_(std::move(folder)), path_(FindPackage(folder_)), package_(OpenPackage(path_)),
      document_(std::make_unique<ProjectDocument>(NewProjectDocument())) {
    const ProfileFile configuration(ReadConfiguration(*package_));
    if (configuration.Entries().empty()) {
        throw DiscError(DamagedMenu);
    }
    ReadRuntimeConfiguration(configuration, *document_);
}

std::optional<std::string> AutorunDisc::ReadFile(std::string_view name) {
    const PackageEntry* entry = name.empty() ? nullptr : package_->Find(name);
    if (entry == nullptr || entry->size > MostFileBytes) {
        return std::nullopt;
    }
    try {
        return package_->Read(*entry);
    } catch (const PackageError&) {
        return std::nullopt;
    }
}

std::vector<std::string> AutorunDisc::FontFiles() const {
    std::vector<std::string> names;
    for (const PackageEntry& entry : package_->Entries()) {
        if (IsFontFile(entry.name)) {
            names.push_back(entry.name);
        }
    }
    return names;
}

} // namespace tavmoor
