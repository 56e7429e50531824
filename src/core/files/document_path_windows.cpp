#include "core/files/document_path_platform.h"

#include "core/files/runtime_error.h"
#include "core/text/code_page.h"

#include <system_error>
#include <windows.h>

namespace tavmoor {

namespace fs = std::filesystem;

fs::path PlatformNativePath(std::string_view documentPath) {
    std::wstring native;
    native.reserve(documentPath.size());
    for (const char byte : documentPath) {
        const char32_t character = SystemCodePage().ToUnicode(static_cast<unsigned char>(byte));
        native += static_cast<wchar_t>(character);
    }
    return native;
}

std::string PlatformPathText(const fs::path& nativePath) {
    try {
        const std::u8string utf8 = nativePath.u8string();
        return {utf8.begin(), utf8.end()};
    } catch (const std::system_error&) { // half a pair of UTF-16, which no other encoding can say
        throw RuntimeError(ErrorNumber::BadFileName, "");
    }
}

std::string_view PlatformRootDrive() {
    return {};
}

bool PlatformEqualWithoutCase(std::string_view a, std::string_view b) {
    const std::wstring left = fs::path(std::u8string(a.begin(), a.end())).wstring();
    const std::wstring right = fs::path(std::u8string(b.begin(), b.end())).wstring();
    return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

} // namespace tavmoor
