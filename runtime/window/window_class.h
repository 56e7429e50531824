#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

namespace tavmoor {

/// How a window came to its end.
enum class WindowEnd : std::uint8_t {
    Done,    ///< as it is meant to; what comes after it follows
    Program, ///< the program is to end
};

/// What a message or a window carries as a number.
template <typename Object>
Object* PointerIn(LONG_PTR number) {
    return reinterpret_cast<Object*>(number); // NOLINT(performance-no-int-to-ptr)
}

/// Leads the messages of a system window to the object that was given to CreateWindowEx, whose
/// `window_` is set by the first one.
template <typename Object>
LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wide, LPARAM lng) {
    if (message == WM_NCCREATE) {
        const auto* create = PointerIn<const CREATESTRUCTW>(lng);
        auto* created = static_cast<Object*>(create->lpCreateParams);
        created->window_ = window;
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    auto* object = PointerIn<Object>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return object != nullptr ? object->Handle(message, wide, lng)
                             : DefWindowProcW(window, message, wide, lng);
}

/// True for a WM_KEYDOWN that only repeats a held key.
inline bool WasDownBefore(LPARAM key) {
    constexpr LPARAM before = 1 << 30;
    return (key & before) != 0;
}

/// Makes a class of windows known to the system; once more does nothing.
/// @param icon resource number of its icon; 0 for none
void RegisterWindowClass(HINSTANCE instance, const wchar_t* name, WNDPROC procedure, int icon = 0);

/// Lets messages through until one says to quit.
/// @param end set by the window that says so
WindowEnd RunMessages(const std::optional<WindowEnd>& end);

/// The time of a window that something else follows: it runs until the window is ended, the first
/// end counts.
class WindowRun {
public:
    void End(WindowEnd end) {
        if (!end_) {
            end_ = end;
            PostQuitMessage(0);
        }
    }
    WindowEnd UntilEnd() { return RunMessages(end_); }

private:
    std::optional<WindowEnd> end_;
};

} // namespace tavmoor
