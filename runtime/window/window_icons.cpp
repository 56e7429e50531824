#include "window/window_icons.h"

namespace tavmoor {

void GiveIcons(HWND window, HINSTANCE instance, const AutorunDisc& disc) {
    const std::wstring file = (disc.Folder() / L"Autorun.ico").wstring();
    const bool hasIcon = !disc.Document().OsnovniPodaci.Ikona.empty();
    const auto load = [&](int width, int height) {
        HANDLE icon = nullptr;
        if (hasIcon) {
            icon = LoadImageW(nullptr, file.c_str(), IMAGE_ICON, width, height, LR_LOADFROMFILE);
        }
        return icon != nullptr ? icon
                               : LoadImageW(instance, MAKEINTRESOURCEW(ProgramIcon), IMAGE_ICON,
                                            width, height, LR_SHARED);
    };
    const auto give = [&](WPARAM which, int width, int height) {
        const HANDLE icon = load(GetSystemMetrics(width), GetSystemMetrics(height));
        SendMessageW(window, WM_SETICON, which, reinterpret_cast<LPARAM>(icon));
    };
    give(ICON_BIG, SM_CXICON, SM_CYICON);
    give(ICON_SMALL, SM_CXSMICON, SM_CYSMICON);
}

} // namespace tavmoor
