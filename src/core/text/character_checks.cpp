#include "core/text/character_checks.h"

#include "core/text/value_encoding.h"

namespace tavmoor {

bool CheckCharacters(std::string_view text) {
    return text.find_first_not_of(FileNameCharacters) == std::string_view::npos;
}

bool IsValidName(std::string_view name) {
    return name.find_first_not_of(AllowedNameCharacters) == std::string_view::npos;
}

std::optional<std::string> FileNameObjection(std::string_view path) {
    const std::string_view name = FileNameOf(path);
    if (CheckCharacters(name)) {
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
