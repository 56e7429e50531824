#pragma once

#include <filesystem>
#include <span>
#include <string>

namespace tavmoor {

/// The fonts that programs of this session can use besides the installed ones; see ServiceSlot.
class SessionFonts {
public:
    virtual ~SessionFonts() = default;
    /// False when the file is no font that the system knows. A file that is added twice has to be
    /// removed twice.
    [[nodiscard]] virtual bool Add(const std::filesystem::path& file) = 0;
    /// False for a file that is not there or was not added.
    [[nodiscard]] virtual bool Remove(const std::filesystem::path& file) = 0;

protected:
    SessionFonts() = default;
    SessionFonts(const SessionFonts&) = default;
    SessionFonts& operator=(const SessionFonts&) = default;
};

// The paths (document form) are those of a project's font list, which ends at its first "". A font
// that cannot be used is no fault of the project: it is passed over.

/// Makes the fonts of a list usable at once, in this program and, on Windows, in all others.
void AddSessionFontsIgnoringErrors(std::span<const std::string> paths);
void RemoveSessionFontsIgnoringErrors(std::span<const std::string> paths);

} // namespace tavmoor
