#pragma once

#include <string>
#include <string_view>

namespace tavmoor {

/// Replaces each line feed, then each carriage return, then each ampersand by "Chr$(10)",
/// "Chr$(13)" and "Chr$(38)", so that a text stands on one line of a file.
std::string EncodeText(std::string_view text);

/// Takes the three replacements back, in the same order. A text in which somebody typed "Chr$(13)"
/// comes back with a line break.
std::string DecodeText(std::string_view text);

/// The stored form of a font size: "" gives "10", a number is rounded half to even ("10.5" is "10",
/// "11.5" is "12"). A text that is no number has no rounding and comes back as it is, so that a
/// damaged size never stops a save.
std::string RoundSize(std::string_view value);

/// The part of a path behind the last backslash; a path without one is returned whole.
std::string_view FileNameOf(std::string_view path);

/// The last characters of a path, as many as it is longer than `cdFolder`: for a file inside the
/// folder, its path on the disc. That it lies inside is not tested; "" for a path that is not
/// longer than the folder.
std::string RelativeToCdFolder(std::string_view path, std::string_view cdFolder);

/// "Jan" to "Dec" for 1 to 12, "" otherwise.
std::string_view MonthName(int month);

/// A stored path with the leading "%" replaced by the program's folder (no backslash at its end).
/// The separator is put between when the stored value, not the folder, lacks one at its own end:
/// kept so, since stored projects count on it. Other paths come back as they are.
std::string ExpandProgramFolder(std::string_view path, std::string_view programFolder);

/// The text without the blanks at its ends; other white space stays.
std::string_view TrimBlanks(std::string_view text);

} // namespace tavmoor
