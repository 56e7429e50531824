#include "window/screen_dpi.h"

namespace tavmoor {

namespace {

template <typename Function>
Function FindInUser32(const char* name) {
    const HMODULE module = GetModuleHandleW(L"user32.dll");
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

} // namespace

int DpiOf(HWND window) {
    using GetDpi = UINT(WINAPI*)(HWND);
    static const auto ofWindow = FindInUser32<GetDpi>("GetDpiForWindow");
    if (ofWindow != nullptr) {
        return static_cast<int>(ofWindow(window));
    }
    const HDC screen = GetDC(nullptr);
    const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dpi;
}

SIZE OuterSize(SIZE client, DWORD style, DWORD extendedStyle, int dpi) {
    using Adjust = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);
    static const auto forDpi = FindInUser32<Adjust>("AdjustWindowRectExForDpi");
    RECT box{0, 0, client.cx, client.cy};
    if (forDpi != nullptr) {
        forDpi(&box, style, FALSE, extendedStyle, static_cast<UINT>(dpi));
    } else {
        AdjustWindowRectEx(&box, style, FALSE, extendedStyle);
    }
    return {box.right - box.left, box.bottom - box.top};
}

} // namespace tavmoor
