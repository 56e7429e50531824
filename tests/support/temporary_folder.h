#pragma once

#include "core/files/document_path.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tavmoor::test {

/// A folder of its own for one test, deleted with all that lies in it at the end.
class TemporaryFolder {
public:
    TemporaryFolder() {
        namespace fs = std::filesystem;
        auto number = std::chrono::steady_clock::now().time_since_epoch().count();
        for (int attempt = 0; attempt < 100; ++attempt, ++number) {
            native_ = fs::temp_directory_path() / ("tavmoor-test-" + std::to_string(number));
            if (fs::create_directory(native_)) {
                return;
            }
        }
        throw std::runtime_error("no temporary folder");
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code error;
        std::filesystem::permissions(native_, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add, error);
        std::filesystem::remove_all(native_, error);
    }

    /// The folder, or the path of `name` in it; parts of a name are parted by '/'.
    [[nodiscard]] std::filesystem::path Native(const std::string& name = "") const {
        return name.empty() ? native_ : (native_ / name).make_preferred();
    }
    /// The same in document form; no backslash at the end.
    [[nodiscard]] std::string Document(const std::string& name = "") const {
        return DocumentPath(Native(name));
    }

    /// Makes a file, and the folders that lead to it.
    /// @return its document path
    std::string Write(const std::string& name, std::string_view bytes) const {
        std::filesystem::create_directories(Native(name).parent_path());
        std::ofstream file(Native(name), std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return Document(name);
    }
    [[nodiscard]] std::string Read(const std::string& name) const {
        std::ifstream file(Native(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    /// The names in the folder itself.
    [[nodiscard]] std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(native_)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

private:
    std::filesystem::path native_;
};

} // namespace tavmoor::test
