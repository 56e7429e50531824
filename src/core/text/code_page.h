#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tavmoor {

/// A character that an 8-bit code page has no place for.
struct UnplacedCharacter {
    std::size_t position; ///< byte offset in the UTF-8 text
    char32_t character;   ///< U+FFFD for bytes that are no UTF-8
};

/// A text in a code page, with the characters that had no place. Each of those stands as '?'.
struct CodePageText {
    std::string bytes;
    std::vector<UnplacedCharacter> unplaced;
};

/// An 8-bit code page. Texts of the core are bytes in the system's code page; this is the one place
/// that turns them into UTF-8 and back. Every byte has a character of its own, also the bytes that
/// the code page leaves undefined (U+0080 to U+009F as themselves, others in the private range
/// U+F780 to U+F7FF), so that any bytes survive the way there and back.
class CodePage {
public:
    /// @param number a Windows code page with one byte to the character: 874 or 1250 to 1258.
    ///        Any other number gives 1252.
    explicit CodePage(int number);

    [[nodiscard]] int Number() const noexcept { return number_; }
    [[nodiscard]] std::string ToUtf8(std::string_view bytes) const;
    [[nodiscard]] CodePageText FromUtf8(std::string_view utf8) const;
    [[nodiscard]] char32_t ToUnicode(unsigned char byte) const noexcept { return table_[byte]; }
    /// True when the code page gives the byte no character.
    [[nodiscard]] bool IsUndefined(unsigned char byte) const noexcept { return undefined_[byte]; }

private:
    int number_;
    std::array<char32_t, 256> table_{};
    std::array<bool, 256> undefined_{};
    std::unordered_map<char32_t, char> bytes_;
};

/// The code page of this program run: the system's own on Windows, elsewhere that of the locale's
/// language, 1252 when the language is unknown.
const CodePage& SystemCodePage();

/// Replaces the system's code page; for tests and for tools that work on another machine's files.
void SetSystemCodePage(int number);

/// The code page for a locale name such as "sr_RS@latin" or "de_DE.UTF-8".
int CodePageOfLocale(std::string_view locale);

/// Appends one character as UTF-8.
void AppendUtf8(std::string& text, char32_t character);

/// Takes the next character of a UTF-8 text at `position` and moves the position behind it. Bytes
/// that are no UTF-8 give U+FFFD, one byte at a time.
char32_t NextUtf8(std::string_view text, std::size_t& position);

} // namespace tavmoor
