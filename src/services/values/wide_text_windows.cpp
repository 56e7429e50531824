#include "services/values/wide_text_windows.h"

#include "core/text/code_page.h"

#include <windows.h>

namespace tavmoor {

std::wstring WideText(std::string_view codePageText) {
    std::wstring wide;
    wide.reserve(codePageText.size());
    for (const char byte : codePageText) {
        wide += static_cast<wchar_t>(SystemCodePage().ToUnicode(static_cast<unsigned char>(byte)));
    }
    return wide;
}

std::string NarrowText(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), size, nullptr, nullptr);
    return SystemCodePage().FromUtf8(utf8).bytes;
}

} // namespace tavmoor
