#include "core/text/code_page_platform.h"

#include <windows.h>

namespace tavmoor {

namespace {

/// The system never says that a byte is undefined: it answers with a control character of the upper
/// range, or with one for private use.
bool IsStandIn(wchar_t character) {
    return (character >= 0x80 && character < 0xA0) || (character >= 0xE000 && character < 0xF900);
}

} // namespace

int PlatformCodePageNumber() {
    return static_cast<int>(GetACP());
}

std::array<std::optional<char32_t>, 256> PlatformCodePageTable(int number) {
    std::array<std::optional<char32_t>, 256> table;
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const char source = static_cast<char>(byte);
        wchar_t character = 0;
        const int count = MultiByteToWideChar(static_cast<UINT>(number), MB_ERR_INVALID_CHARS,
                                              &source, 1, &character, 1);
        if (count == 1 && !IsStandIn(character)) {
            table[byte] = character;
        }
    }
    return table;
}

} // namespace tavmoor
