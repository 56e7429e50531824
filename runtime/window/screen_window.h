#pragma once

#include "menu/autorun_disc.h"
#include "menu/screen_layout.h"
#include "window/gdi_fonts.h"
#include "window/picture_store.h"
#include "window/window_class.h"

#include <memory>

namespace tavmoor {

/// A splash or exit screen: a window without frame that goes by itself after its time.
class ScreenWindow {
public:
    /// The disc and the look outlive the window.
    ScreenWindow(AutorunDisc& disc, const Look& look, ScreenModel model);
    ScreenWindow(const ScreenWindow&) = delete;
    ScreenWindow& operator=(const ScreenWindow&) = delete;
    ~ScreenWindow() { Close(); }

    /// Shows the screen in the middle of the screen that the pointer is on, if it is to be shown.
    /// @return false when it is not, or when the system has no window to give
    bool Show(HINSTANCE instance);
    /// Returns when the time is over or the user has ended it; the window stands until Close, so
    /// that what follows can be shown before it goes.
    WindowEnd Run() { return run_.UntilEnd(); }
    void Close();

private:
    template <typename Object>
    friend LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wide, LPARAM lng);

    LRESULT Handle(UINT message, WPARAM wide, LPARAM lng);
    LRESULT HandleInput(UINT message, WPARAM wide, LPARAM lng);
    [[nodiscard]] ScreenRequest Request();
    void TakeDpi(int dpi);
    void Paint(HDC target, Extent client);

    AutorunDisc& disc_;
    const Look& look_;
    ScreenModel model_;
    PictureStore pictures_;
    std::unique_ptr<GdiFonts> drawing_;
    HWND window_ = nullptr;
    int dpi_ = 96;
    bool pressed_ = false;
    WindowRun run_;
};

} // namespace tavmoor
