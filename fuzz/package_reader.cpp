// Any bytes as a package: what is accepted is laid out back to back, reads as it lies there and
// never lands outside the folder it is extracted to.

#include "package/package_reader.h"
#include "check.h"
#include "package/package_format.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;
using namespace tavmoor;

/// A folder of this process, removed when the run ends.
class Place {
public:
    Place() {
        std::string name = (fs::temp_directory_path() / "fuzz-package-XXXXXX").string();
        Check(mkdtemp(name.data()) != nullptr, "a temporary folder can be made");
        folder_ = name;
    }
    ~Place() { fs::remove_all(folder_); }
    Place(const Place&) = delete;
    Place& operator=(const Place&) = delete;

    [[nodiscard]] fs::path Package() const { return folder_ / "package"; }
    [[nodiscard]] fs::path Target() const { return folder_ / "target"; }
    [[nodiscard]] std::size_t Entries() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
    }

private:
    fs::path folder_;
};

void CheckLayout(const std::vector<PackageEntry>& entries, std::uint64_t packageSize) {
    std::uint64_t end = entries.empty() ? packageSize : entries.front().offset;
    std::uint64_t sum = 0;
    for (const PackageEntry& entry : entries) {
        Check(entry.offset == end, "entries lie back to back");
        Check(entry.size <= packageSize - end, "entries end within the package");
        end += entry.size;
        sum += entry.size;
    }
    Check(end == packageSize || end + 2 == packageSize + sum, "entries fill the package");
}

bool HeadIsSound(std::string_view head, std::uint64_t packageSize) {
    try {
        CheckLayout(ReadPackageHead(head, packageSize), packageSize);
        return true;
    } catch (const PackageError&) {
        return false;
    }
}

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void CheckExtracting(const Place& place, PackageFile& package, const std::string& bytes) {
    try {
        package.ExtractTo(place.Target());
        std::size_t files = 0;
        for (const auto& file : fs::directory_iterator(place.Target())) {
            const PackageEntry* entry = package.Find(file.path().filename().string());
            Check(entry != nullptr, "each extracted file is an entry");
            Check(BytesOf(file.path()) == bytes.substr(entry->offset, entry->size),
                  "a file is extracted as it is");
            ++files;
        }
        Check(files == package.Entries().size(), "every entry is extracted");
    } catch (const PackageError&) {
        std::error_code missing;
        Check(!fs::exists(place.Target(), missing) || fs::is_empty(place.Target()),
              "a failure leaves the folder as it was");
    }
    Check(place.Entries() <= 2, "nothing lands outside the folder");
    fs::remove_all(place.Target());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Place place;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const bool sound = HeadIsSound(bytes, size);
    HeadIsSound(bytes, size / 2);
    HeadIsSound(bytes, ~std::uint64_t{0});
    HeadIsSound(std::string_view(bytes).substr(0, size / 2), size);
    // The file itself is slow; without the title it is only tried now and then.
    if (!sound && size % 64 != 0) {
        return 0;
    }
    std::ofstream(place.Package(), std::ios::binary | std::ios::trunc) << bytes;
    try {
        PackageFile package(place.Package());
        Check(sound, "a file is read like its bytes");
        for (const PackageEntry& entry : package.Entries()) {
            Check(package.Read(entry) == bytes.substr(entry.offset, entry.size),
                  "an entry reads as it lies in the package");
        }
        CheckExtracting(place, package, bytes);
    } catch (const PackageError&) {
        Check(!sound, "a sound head makes a sound package");
    }
    return 0;
}
