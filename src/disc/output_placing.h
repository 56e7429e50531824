#pragma once

#include "core/disk/fresh_file.h"
#include "disc/build_events.h"
#include "disc/disc_survey.h"
#include "package/package_writer.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tavmoor {

/// The last part of a build: new output is written beside the old one under names of its own,
/// flushed and looked at, and only then renamed into place, file by file; what is older goes last.
/// At every moment, also when the process is killed, `Autorun.inf` names a program that is whole
/// beside a package that is whole.
class OutputPlacing {
public:
    /// @param folder the disc's folder, native, held by the build
    OutputPlacing(std::filesystem::path folder, BuildEvents& events);

    /// Copies a file and compares the copy with it.
    /// @throws RuntimeError when it cannot be read, written, flushed or is not the same
    void StageCopy(const std::string& name, std::string_view source);
    /// @throws RuntimeError as StageCopy
    void StageText(const std::string& name, std::string_view text);
    /// Moves the package from its working folder, or copies it to another file system; then looks
    /// at its length and head.
    /// @throws RuntimeError as StageCopy
    void StagePackage(const std::string& name, const std::filesystem::path& built,
                      const BuiltPackage& package);

    /// Renames all that was staged into place, in the order of the staging.
    /// @throws RuntimeError when one cannot be placed; Placed() names those that were
    void Place();
    [[nodiscard]] const std::vector<std::string>& Placed() const { return placed_; }

    /// Deletes older output; each is looked at again just before.
    /// @return names of those that could not be deleted
    static std::vector<std::string> Delete(const std::vector<OldOutput>& older);

private:
    struct Staged {
        std::string name;
        FreshFile file;
    };

    FreshFile& Stage(const std::string& name, std::uint64_t bytes);
    void CopyInto(FreshFile& file, const std::string& name, const std::filesystem::path& from,
                  bool tellsProgress);
    void Finish(FreshFile& file, const std::string& name);
    void Require(const std::error_code& error, const std::string& name) const;

    std::filesystem::path folder_;
    BuildEvents& events_;
    std::vector<Staged> staged_;
    std::vector<std::string> placed_;
};

} // namespace tavmoor
