#include "core/text/character_checks.h"

#include "core/text/path_text.h"

namespace tavmoor {

namespace {

/// The characters that the name of a chosen file may have; the blank is the last one.
constexpr std::string_view FileNameCharacters =
    "1234567890qwertyuiopasdfghjklzxcvbnmQWERTYUIOPASDFGHJKLZXCVBNM:\\().-_!+@# ";

} // namespace

bool IsValidName(std::string_view name) {
    return name.find_first_not_of(AllowedNameCharacters) == std::string_view::npos;
}

std::optional<std::string> FileNameObjection(std::string_view path) {
    const std::string_view name = FileNameOf(path);
    if (name.find_first_not_of(FileNameCharacters) == std::string_view::npos) {
        return std::nullopt;
    }
    // The blank stands in another place here than in the set that is checked against.
    std::string message = "Incorrect filename format! \r\n";
    message += "Filename [" + std::string(name) + "] must be changed to English filename.\r\n";
    message += "Available characters are:\r\n";
    message += "1234567890qwertyuiopasdfghjklzxcvbnmQWERTYUIOPASDFGHJKLZXCVBNM :\\().-_!+@#\r\n";
    message += "To make sure your autorun can properly work on any computer, "
               "please rename the file and select it again.";
    return message;
}

} // namespace tavmoor
