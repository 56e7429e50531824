#pragma once

#include "core/document/project_document.h"
#include "package/package_events.h"
#include "package/package_writer.h"

#include <chrono>
#include <cstdint>
#include <string_view>

namespace tavmoor {

enum class BuildMessageKind : std::uint8_t { Plain, Critical };

/// What a build tells while it runs, and what it needs from its surroundings: the window of the
/// final step shows and does all of it, a command line some. Texts are in the system's code page.
class BuildEvents : public PackageEvents {
public:
    /// The text of the status line; may have several lines.
    virtual void Status(std::string_view /*text*/) {}
    /// A message box with one button; without a title where that is "".
    virtual void ShowMessage(std::string_view /*text*/, std::string_view /*title*/,
                             BuildMessageKind /*kind*/) {}

    /// The name field takes a back colour, or another text.
    virtual void ColorName(ColorValue /*color*/) {}
    virtual void ReplaceName(std::string_view /*name*/) {}
    /// The target folder is marked as missing.
    virtual void MarkFolder() {}
    virtual void EnableBuild(bool /*enabled*/) {}

    /// A file of the list is about to be checked.
    virtual void CheckingFile(std::string_view /*path*/) {}

    virtual void PackageWritten(const BuiltPackage& /*package*/) {}

    virtual void Wait(std::chrono::milliseconds /*time*/) {}

    /// Starts the finished autorun with normal focus.
    virtual void StartAutorun(std::string_view /*path*/) {}
};

} // namespace tavmoor
