#include "services/system/session_fonts_platform.h"

#include <windows.h>

namespace tavmoor {

namespace {

/// Other programs ask for the fonts again; none of them is waited for.
void TellPrograms() {
    PostMessageW(HWND_BROADCAST, WM_FONTCHANGE, 0, 0);
}

} // namespace

bool PlatformAddFont(const std::filesystem::path& file) {
    const bool added = AddFontResourceW(file.c_str()) != 0;
    if (added) {
        TellPrograms();
    }
    return added;
}

bool PlatformRemoveFont(const std::filesystem::path& file) {
    const bool removed = RemoveFontResourceW(file.c_str()) != 0;
    if (removed) {
        TellPrograms();
    }
    return removed;
}

} // namespace tavmoor
