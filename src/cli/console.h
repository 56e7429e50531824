#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tavmoor::cli {

// Everything that comes from or goes to the terminal is UTF-8; texts of the core are bytes in the
// system's code page.

/// A command that could not do all that was asked; the text is one line of UTF-8.
class CommandFailure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A core text as UTF-8.
std::string Utf8(std::string_view codePageText);

/// The same on one line, for messages that have several; other control characters, which would
/// steer a terminal, become "?".
std::string OneLine(std::string_view codePageText);

/// A line, or a part of one, on standard output.
/// @throws CommandFailure when it cannot be written
void PrintLine(std::string_view utf8);
void PrintPart(std::string_view utf8);
/// An error line on standard error.
void PrintError(std::string_view utf8);

/// A typed text as core text.
/// @throws CommandFailure when the code page has no place for a character
std::string TextArgument(const std::string& utf8);

/// A typed path, native or in document form, as an absolute document path.
/// @throws CommandFailure for "", and when the document cannot say the path
std::string PathArgument(const std::string& utf8);

/// True for a typed path that begins with a drive or a backslash.
bool IsDocumentForm(const std::string& utf8);

std::filesystem::path FromUtf8(const std::string& utf8);

} // namespace tavmoor::cli
