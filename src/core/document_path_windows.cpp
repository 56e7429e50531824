#include "core/document_path.h"

#include "core/code_page.h"
#include "core/runtime_error.h"

#include <algorithm>

namespace tavmoor {

namespace fs = std::filesystem;

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
    const std::u8string utf8 = nativePath.u8string();
    CodePageText text =
        SystemCodePage().FromUtf8({reinterpret_cast<const char*>(utf8.data()), utf8.size()});
    if (!text.unplaced.empty()) {
        throw RuntimeError(ErrorNumber::BadFileName, text.bytes);
    }
    std::replace(text.bytes.begin(), text.bytes.end(), '/', '\\');
    return text.bytes;
}

} // namespace tavmoor
