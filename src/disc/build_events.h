#pragma once

#include "package/package_events.h"

#include <chrono>
#include <cstdint>
#include <string_view>

namespace tavmoor {

/// What a build may have to ask; each is answered with yes or no.
enum class BuildQuestion : std::uint8_t {
    ReplaceForeignProgram, ///< a program of somebody else has the autorun's name
    DeleteOldFirst,        ///< there is room for the new autorun only when the old one goes first
};

/// What a build tells while it runs, and what it needs from its surroundings: the window of the
/// final step shows and does all of it, a command line some. Texts are in the system's code page.
class BuildEvents : public PackageEvents {
public:
    /// The text of the status line; may have several lines.
    virtual void Status(std::string_view /*text*/) {}

    /// A file of the list is about to be checked.
    virtual void CheckingFile(std::string_view /*path*/) {}

    /// Bytes of the finished package that were copied to the disc's folder, where it lies on
    /// another file system than the working files. LetEventsRun follows each call.
    virtual void PlacingProgress(std::uint64_t /*done*/, std::uint64_t /*total*/) {}

    /// @return true for yes; who does not answer says no
    virtual bool Ask(BuildQuestion /*question*/, std::string_view /*text*/) { return false; }

    /// Leaves a status on the screen for a moment.
    virtual void Wait(std::chrono::milliseconds /*time*/) {}

    /// Starts the finished autorun with normal focus.
    virtual void StartAutorun(std::string_view /*path*/) {}
};

} // namespace tavmoor
