#include "window/wide_text.h"

#include <windows.h>

namespace tavmoor {

std::wstring Wide(std::string_view utf8) {
    const int size = static_cast<int>(utf8.size());
    const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
    std::wstring text(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, text.data(), length);
    return text;
}

std::string Narrow(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    const int length =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, utf8.data(), length, nullptr, nullptr);
    return utf8;
}

std::string SystemErrorText(unsigned long number) {
    wchar_t* words = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        nullptr, number, 0, reinterpret_cast<wchar_t*>(&words), 0, nullptr);
    std::string text = length == 0 ? "Error " + std::to_string(number) + "."
                                   : Narrow(std::wstring_view(words, length));
    LocalFree(words);
    text.erase(text.find_last_not_of(" \r\n") + 1);
    return text;
}

} // namespace tavmoor
