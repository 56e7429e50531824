#pragma once

#include "core/document/project_document.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace tavmoor {

/// What is known of a package that was written: enough to tell it from every other one, since the
/// noise in its head is new each time.
struct BuiltPackage {
    std::string head;         ///< its first bytes, up to the first file
    std::uint64_t length = 0; ///< bytes
};

enum class BuildMessageKind : std::uint8_t { Plain, Critical };

/// What a build tells while it runs, and what it needs from its surroundings: the window of the
/// final step shows and does all of it, a command line some. Texts are in the system's code page.
class BuildEvents {
public:
    virtual ~BuildEvents() = default;

    /// The text of the status line; may have several lines.
    virtual void Status(std::string_view /*text*/) {}
    /// A message box with one button; without a title where that is "".
    virtual void ShowMessage(std::string_view /*text*/, std::string_view /*title*/,
                             BuildMessageKind /*kind*/) {}

    /// The name field takes a back colour, or another text.
    virtual void ColourName(ColorValue /*colour*/) {}
    virtual void ReplaceName(std::string_view /*name*/) {}
    /// The target folder is marked as missing.
    virtual void MarkFolder() {}
    virtual void EnableBuild(bool /*enabled*/) {}

    /// A file of the list is about to be checked or packed.
    virtual void CheckingFile(std::string_view /*path*/) {}
    virtual void PackingFile(std::string_view /*path*/) {}
    /// Bytes of all files that are in the package so far, and that will be.
    virtual void PackageProgress(std::uint64_t /*done*/, std::uint64_t /*total*/) {}

    virtual void PackageWritten(const BuiltPackage& /*package*/) {}

    /// Lets pending events run.
    virtual void LetEventsRun() {}
    virtual void Wait(std::chrono::milliseconds /*time*/) {}

    /// Starts the finished autorun with normal focus.
    virtual void StartAutorun(std::string_view /*path*/) {}

protected:
    BuildEvents() = default;
    BuildEvents(const BuildEvents&) = default;
    BuildEvents& operator=(const BuildEvents&) = default;
};

} // namespace tavmoor
