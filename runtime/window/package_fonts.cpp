#include "window/package_fonts.h"

namespace tavmoor {

PackageFonts::PackageFonts(AutorunDisc& disc) {
    for (const std::string& name : disc.FontFiles()) {
        std::optional<std::string> bytes = disc.ReadFile(name);
        if (!bytes) {
            continue;
        }
        DWORD count = 0;
        HANDLE font =
            AddFontMemResourceEx(bytes->data(), static_cast<DWORD>(bytes->size()), nullptr, &count);
        if (font != nullptr) {
            fonts_.push_back(font);
        }
    }
}

PackageFonts::~PackageFonts() {
    for (const HANDLE font : fonts_) {
        RemoveFontMemResourceEx(font);
    }
}

} // namespace tavmoor
