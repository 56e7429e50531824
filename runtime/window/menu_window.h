#pragma once

#include "menu/autorun_disc.h"
#include "menu/command_runner.h"
#include "menu/menu_layout.h"
#include "menu/menu_navigation.h"
#include "window/background_player.h"
#include "window/click_sound.h"
#include "window/gdi_fonts.h"
#include "window/picture_store.h"
#include "window/window_class.h"

#include <windows.h>

#include <memory>
#include <optional>

namespace tavmoor {

/// The menu window: shows the layout, follows pointer and keyboard, and runs the commands.
class MenuWindow {
public:
    /// All arguments outlive the window.
    MenuWindow(AutorunDisc& disc, const Look& look, CommandRunner& runner, BackgroundPlayer& sound);
    MenuWindow(const MenuWindow&) = delete;
    MenuWindow& operator=(const MenuWindow&) = delete;
    ~MenuWindow() { DestroyWindow(window_); }

    /// Makes and shows the window in the middle of the screen that the pointer is on.
    /// @return false when the system has no window to give
    bool Show(HINSTANCE instance);
    /// Returns when the user has closed the menu or the system ends the program; the window stands
    /// until Hide.
    WindowEnd Run() { return run_.UntilEnd(); }
    void Hide() { ShowWindow(window_, SW_HIDE); }

private:
    template <typename Object>
    friend LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wide, LPARAM lng);

    LRESULT Handle(UINT message, WPARAM wide, LPARAM lng);
    LRESULT HandlePointer(UINT message, WPARAM wide, LPARAM lng);

    [[nodiscard]] LayoutRequest Request();
    void PlaceOnScreen();
    void TakeDpi(int dpi);
    void TakeColors();
    void Arrange();
    void Repaint();
    void OnPaint();
    void OnDpiChanged(int dpi, const RECT& place);
    void OnPointerMove(POINT at);
    void OnPress(POINT at);
    void OnRelease(POINT at);
    void OnWheel(int delta);
    bool OnKey(WPARAM key, bool repeated);
    void MoveFocus(MenuMove move);
    void ScrollTo(int scroll);
    void ShowSelection();
    void RunButton(std::size_t button);

    AutorunDisc& disc_;
    const Look& look_;
    CommandRunner& runner_;
    BackgroundPlayer& sound_;
    ClickSound clickSound_;
    PictureStore pictures_;
    MenuModel model_;
    MenuFonts fonts_;
    Palette palette_;
    std::unique_ptr<GdiFonts> drawing_;
    MenuLayout layout_;
    MenuSelection selection_;
    HWND window_ = nullptr;
    int dpi_ = 96;
    int scroll_ = 0;
    std::optional<int> thumbGrip_; ///< where in the scroll bar's thumb it is held
    bool running_ = false;         ///< a command is being started
    WindowRun run_;
};

} // namespace tavmoor
