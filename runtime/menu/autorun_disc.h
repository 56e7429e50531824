#pragma once

#include "core/document/project_document.h"
#include "package/package_reader.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tavmoor {

/// The disc cannot show its menu; the text is for its user, in plain ASCII.
class DiscError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// What lies beside the autorun program: the package with its configuration and pictures.
class AutorunDisc {
public:
    /// Opens `Autorun.arn`, in any letter case, and reads the configuration in it.
    /// @param folder the program's folder
    /// @throws DiscError when either is missing or damaged
    explicit AutorunDisc(std::filesystem::path folder);

    [[nodiscard]] const std::filesystem::path& Folder() const noexcept { return folder_; }
    [[nodiscard]] const std::filesystem::path& PackagePath() const noexcept { return path_; }
    [[nodiscard]] const ProjectDocument& Document() const noexcept { return *document_; }

    /// The bytes of a file in the package; nothing when there is none of that name, when it is
    /// larger than a picture may be, or when it cannot be read.
    [[nodiscard]] std::optional<std::string> ReadFile(std::string_view name);

    /// The names of the font files in the package.
    [[nodiscard]] std::vector<std::string> FontFiles() const;

private:
    std::filesystem::path folder_;
    std::filesystem::path path_; ///< of the package
    std::unique_ptr<PackageFile> package_;
    std::unique_ptr<ProjectDocument> document_;
};

} // namespace tavmoor
