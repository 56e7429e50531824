#include "window/package_fonts.h"

namespace tavmoor {

PackageFonts::PackageFonts(AutorunDisc& disc) {
    for (const std::string& name : disc.FontFiles()) {
        auto bytes = disc.ReadFile(name);
        DWORD count = 0;
        HANDLE font = bytes ? AddFontMemResourceEx(bytes->data(), static_cast<DWORD>(bytes->size()),
                                                   nullptr, &count)
                            : nullptr;
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
