#include "core/files/document_path.h"

#include "core/files/runtime_error.h"
#include "core/text/code_page.h"

#include <algorithm>
#include <system_error>
#include <windows.h>

namespace tavmoor {

namespace fs = std::filesystem;

namespace {

/// A name may hold half a pair of UTF-16, which no other encoding can say.
std::u8string Utf8Of(const fs::path& path) {
    try {
        return path.u8string();
    } catch (const std::system_error&) {
        throw RuntimeError(ErrorNumber::BadFileName, "");
    }
}

} // namespace

fs::path NativePath(std::string_view documentPath) {
    if (documentPath.find('\0') != std::string_view::npos) {
        throw RuntimeError(ErrorNumber::BadFileName, documentPath);
    }
    std::wstring native;
    native.reserve(documentPath.size());
    for (const char byte : documentPath) {
        const char32_t character = SystemCodePage().ToUnicode(static_cast<unsigned char>(byte));
        native += static_cast<wchar_t>(character);
    }
    return native;
}

std::string DocumentPath(const fs::path& nativePath) {
    const std::u8string utf8 = Utf8Of(nativePath);
    CodePageText text =
        SystemCodePage().FromUtf8({reinterpret_cast<const char*>(utf8.data()), utf8.size()});
    if (!text.unplaced.empty()) {
        throw RuntimeError(ErrorNumber::BadFileName, text.bytes);
    }
    std::replace(text.bytes.begin(), text.bytes.end(), '/', '\\');
    return text.bytes;
}

bool SamePath(std::string_view a, std::string_view b) {
    const auto left = FindNativePath(a);
    const auto right = FindNativePath(b);
    return left && right &&
           CompareStringOrdinal(left->c_str(), -1, right->c_str(), -1, TRUE) == CSTR_EQUAL;
}

} // namespace tavmoor
