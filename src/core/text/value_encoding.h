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

/// "Jan" to "Dec" for 1 to 12, "" otherwise.
std::string_view MonthName(int month);

} // namespace tavmoor
