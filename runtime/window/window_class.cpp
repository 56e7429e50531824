#include "window/window_class.h"

namespace tavmoor {

void RegisterWindowClass(HINSTANCE instance, const wchar_t* name, WNDPROC procedure, int icon) {
    WNDCLASSEXW kind{};
    kind.cbSize = sizeof(kind);
    kind.lpfnWndProc = procedure;
    kind.hInstance = instance;
    kind.lpszClassName = name;
    kind.hIcon = icon != 0 ? LoadIconW(instance, MAKEINTRESOURCEW(icon)) : nullptr;
    RegisterClassExW(&kind);
}

WindowEnd RunMessages(const std::optional<WindowEnd>& end) {
    MSG message{};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return end.value_or(WindowEnd::Program);
}

} // namespace tavmoor
