#pragma once

#include <string_view>

namespace tavmoor {

// What the maker supplies; nothing of it stands anywhere else. All of it is plain ASCII, so that it
// is the same in every code page.

inline constexpr std::string_view ProgramName = "Tavmoor";
inline constexpr std::string_view VersionText = "Tavmoor, version 7.9.2, Orlenta";

/// The company name in the version block of this maker's autorun programs; the programs in the
/// templates carry it, and the build deletes older programs that do.
inline constexpr std::string_view MakerMarker = "Orlenta";

inline constexpr std::string_view MakerWebPage = "https://www.tavmoor.example";
inline constexpr std::string_view MakerMailAddress = "contact@tavmoor.example";
inline constexpr std::string_view MakerMailSubject = ProgramName;

/// Tells whether there is a newer release than this one.
inline constexpr std::string_view UpdateAddress =
    "https://www.tavmoor.example/tavmoor-vercheck.php?ver=790";

} // namespace tavmoor
