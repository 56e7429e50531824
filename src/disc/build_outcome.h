#pragma once

#include "disc/build_events.h"
#include "package/package_writer.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tavmoor {

/// How a build ended.
enum class BuildEnd : std::uint8_t {
    Built,         ///< the disc's folder holds what the project says, and nothing older
    FolderMissing, ///< `CdFolder` does not exist; the window leads back to the main settings
    NameRefused,   ///< forbidden characters; see suggestedName
    NameEmpty,
    FileUnreadable, ///< a file of the list cannot be read
    Refused,        ///< the project or the folders do not allow a whole disc; nothing was touched
    Declined,       ///< a question of the build was answered with no; nothing was touched
    Busy,           ///< another build works in the disc's folder
    InUse,          ///< an older file is running or open elsewhere; nothing was touched
    NoRoom,         ///< a disk is too full; the older autorun stands as it was
    PartlyPlaced,   ///< some files are new, see placed; building again mends it
    OlderStays,     ///< the new autorun stands, but some older output could not be deleted
};

/// What a build has to tell once it has ended; the window and the command line say the same.
struct BuildOutcome {
    BuildEnd end = BuildEnd::Built;
    std::string text;  ///< of the message, code page bytes; "" when there is nothing to tell
    std::string title; ///< of its box; "" for a box without one
    bool isCritical = false;
    std::optional<BuildQuestion> declined; ///< for Declined
    std::string suggestedName;             ///< for NameRefused: blanks are replaced
    std::vector<std::string> placed;       ///< names of the files in the disc's folder that are new
    BuiltPackage package;

    [[nodiscard]] bool IsWhole() const { return end == BuildEnd::Built; }
};

// The ends of a build other than Built, with their messages. Used by the build driver.

BuildOutcome FolderMissing(const std::string& cdFolder);
BuildOutcome NameRefused(const std::string& name);
BuildOutcome NameEmpty();
BuildOutcome FileUnreadable(const std::string& path);
/// @param objection says all that is to be told
BuildOutcome Refused(std::string objection);
BuildOutcome Declined(BuildQuestion question, std::string problem);
/// @param holder in UTF-8, as a FolderLock names it
BuildOutcome Busy(const std::string& cdFolder, const std::string& holder);
BuildOutcome InUse(std::string objection);
/// @param folder which folder, and its path
/// @param missing bytes; 0 when the system does not tell
BuildOutcome NoRoom(const std::string& folder, std::uint64_t missing);
/// Nothing or a part was placed when an error came.
BuildOutcome NotPlaced(const std::string& error, const std::vector<std::string>& placed);
BuildOutcome OlderStays(const std::vector<std::string>& older);

/// Names with commas between them.
std::string Joined(const std::vector<std::string>& names);

/// Whole megabytes, rounded up, as messages tell sizes.
std::string MegabytesOf(std::uint64_t bytes);

} // namespace tavmoor
