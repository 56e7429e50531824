#include "window/menu_window.h"

#include "menu/palette.h"
#include "window/menu_painter.h"
#include "window/monitor.h"
#include "window/paint_buffer.h"
#include "window/screen_dpi.h"
#include "window/wide_text.h"
#include "window/window_icons.h"

#include <algorithm>
#include <utility>
#include <windowsx.h>

namespace tavmoor {

namespace {

constexpr const wchar_t* ClassName = L"TavmoorAutorunMenu";
constexpr DWORD Style = WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;
constexpr int WheelStep = 60; ///< pixels at 96 dpi for one notch

bool Exists(const std::string& path) {
    return GetFileAttributesW(Wide(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::optional<MenuMove> MoveOfKey(WPARAM key, bool shift) {
    switch (key) {
    case VK_TAB:
        return shift ? MenuMove::Previous : MenuMove::Next;
    case VK_UP:
        return MenuMove::Up;
    case VK_DOWN:
        return MenuMove::Down;
    case VK_LEFT:
        return MenuMove::Left;
    case VK_RIGHT:
        return MenuMove::Right;
    case VK_PRIOR:
        return MenuMove::PageUp;
    case VK_NEXT:
        return MenuMove::PageDown;
    case VK_HOME:
        return MenuMove::First;
    case VK_END:
        return MenuMove::Last;
    default:
        return std::nullopt;
    }
}

} // namespace

MenuWindow::MenuWindow(AutorunDisc& disc, const Look& look, CommandRunner& runner,
                       BackgroundPlayer& sound)
    : disc_(disc), look_(look), runner_(runner), sound_(sound), clickSound_(disc), pictures_(disc),
      model_(MakeMenuModel(disc.Document(), look.designedIn)), fonts_(ChooseFonts(model_, look)) {
    if (look_.groupTitles) {
        GatherGroups(model_);
    }
    TakeColors();
}

bool MenuWindow::Show(HINSTANCE instance) {
    RegisterWindowClass(instance, ClassName, WindowProcedure<MenuWindow>, ProgramIcon);
    const POINT corner = CornerOfPointersScreen();
    CreateWindowExW(0, ClassName, Wide(model_.windowTitle).c_str(), Style, corner.x, corner.y, 1, 1,
                    nullptr, nullptr, instance, this);
    if (window_ == nullptr) {
        return false;
    }
    TakeDpi(DpiOf(window_));
    GiveIcons(window_, instance, disc_);
    PlaceOnScreen();
    ShowWindow(window_, model_.maximized ? SW_SHOWMAXIMIZED : SW_SHOWNORMAL);
    SetForegroundWindow(window_);
    return true;
}

void MenuWindow::PlaceOnScreen() {
    const Box work = WorkArea(window_);
    const WantedSize wanted =
        ChooseSize(model_, look_, pictures_.NaturalSize(model_.backgroundPicture));
    Extent size{ToPixels(wanted.size.width, dpi_), ToPixels(wanted.size.height, dpi_)};
    if (!wanted.outer) {
        const SIZE frame = OuterSize({0, 0}, Style, 0, dpi_);
        const int frameWidth = static_cast<int>(frame.cx);
        const int frameHeight = static_cast<int>(frame.cy);
        if (wanted.keepRatio) {
            size = ShrinkInto(size, {work.width - frameWidth, work.height - frameHeight});
        }
        size = {size.width + frameWidth, size.height + frameHeight};
    }
    PlaceInMiddle(window_, size);
}

void MenuWindow::TakeDpi(int dpi) {
    dpi_ = dpi;
    drawing_ = std::make_unique<GdiFonts>(dpi);
}

void MenuWindow::TakeColors() {
    const bool fills = look_.picturePlace != PicturePlace::Frame;
    palette_ = MakePalette(model_, look_, GetSysColor,
                           fills && !pictures_.NaturalSize(model_.backgroundPicture).Empty());
}

LayoutRequest MenuWindow::Request() {
    RECT client{};
    GetClientRect(window_, &client);
    LayoutRequest request{model_, look_, fonts_, *drawing_};
    request.client = {static_cast<int>(client.right), static_cast<int>(client.bottom)};
    request.dpi = dpi_;
    request.logoPicture = pictures_.NaturalSize(model_.logoPicture);
    request.backgroundPicture = !pictures_.NaturalSize(model_.backgroundPicture).Empty();
    request.panel = (palette_.panel >> 24U) != 0;
    return request;
}

void MenuWindow::Arrange() {
    if (!drawing_) {
        return;
    }
    layout_ = ArrangeMenu(Request());
    scroll_ = std::clamp(scroll_, 0, layout_.MostScroll());
    Repaint();
}

void MenuWindow::Repaint() {
    InvalidateRect(window_, nullptr, FALSE);
}

void MenuWindow::OnPaint() {
    PaintBuffered(window_, [this](HDC target, Extent /*client*/) {
        const LayoutRequest request = Request();
        MenuPainter(target, request, layout_, palette_, *drawing_, pictures_)
            .Paint(selection_, scroll_);
    });
}

void MenuWindow::OnDpiChanged(int dpi, const RECT& place) {
    TakeDpi(dpi);
    SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    Arrange();
}

void MenuWindow::OnPointerMove(POINT at) {
    if (thumbGrip_) {
        ScrollTo(layout_.ScrollOfThumb(static_cast<int>(at.y) - *thumbGrip_));
        return;
    }
    TRACKMOUSEEVENT leave{sizeof(leave), TME_LEAVE, window_, 0};
    TrackMouseEvent(&leave);
    const auto button = layout_.ButtonAt(static_cast<int>(at.x), static_cast<int>(at.y), scroll_);
    if (selection_.PointerAt(button)) {
        ShowSelection();
    }
}

void MenuWindow::OnPress(POINT at) {
    OnPointerMove(at);
    const int x = static_cast<int>(at.x);
    const int y = static_cast<int>(at.y);
    const Box thumb = layout_.ScrollThumb(scroll_);
    if (!thumb.Empty() && layout_.scrollBar.Contains(x, y)) {
        const bool held = thumb.Contains(x, y);
        thumbGrip_ = held ? y - thumb.y : thumb.height / 2;
        ScrollTo(layout_.ScrollOfThumb(y - *thumbGrip_));
    } else {
        selection_.Press();
    }
    SetCapture(window_);
    Repaint();
}

void MenuWindow::OnRelease(POINT at) {
    const bool scrolled = thumbGrip_.has_value();
    thumbGrip_.reset();
    OnPointerMove(at);
    const auto clicked = selection_.Release();
    ReleaseCapture();
    Repaint();
    if (clicked && !scrolled) {
        RunButton(*clicked);
    }
}

void MenuWindow::OnWheel(int delta) {
    ScrollTo(scroll_ - MulDiv(ToPixels(WheelStep, dpi_), delta, WHEEL_DELTA));
    POINT pointer{};
    GetCursorPos(&pointer);
    ScreenToClient(window_, &pointer);
    OnPointerMove(pointer);
}

bool MenuWindow::OnKey(WPARAM key, bool repeated) {
    if (const auto move = MoveOfKey(key, GetKeyState(VK_SHIFT) < 0)) {
        MoveFocus(*move);
        return true;
    }
    if (key == VK_ESCAPE) {
        run_.End(WindowEnd::Done);
        return true;
    }
    if (key != VK_RETURN && key != VK_SPACE) {
        return false;
    }
    if (const auto button = selection_.Focused(); button && !repeated) {
        selection_.FocusByKey(*button);
        ShowSelection();
        RunButton(*button);
    }
    return true;
}

void MenuWindow::MoveFocus(MenuMove move) {
    const std::size_t button = ButtonAfter(layout_, selection_.Focused(), move);
    selection_.FocusByKey(button);
    ScrollTo(layout_.ScrollToShow(button, scroll_));
    ShowSelection();
}

void MenuWindow::ShowSelection() {
    if (selection_.TakeArrival()) {
        clickSound_.Play();
    }
    Repaint();
}

void MenuWindow::ScrollTo(int scroll) {
    scroll = std::clamp(scroll, 0, layout_.MostScroll());
    if (std::exchange(scroll_, scroll) != scroll) {
        Repaint();
    }
}

void MenuWindow::RunButton(std::size_t button) {
    if (running_) {
        return; // the shell lets messages through while it starts something
    }
    running_ = true;
    clickSound_.Play();
    const HCURSOR before = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    const CommandOutcome outcome =
        RunCommand(model_.commands[button], Narrow(disc_.Folder().wstring()), Exists, runner_);
    SetCursor(before);
    sound_.Change(outcome.sound);
    if (!outcome.message.empty()) {
        MessageBoxW(window_, Wide(outcome.message).c_str(), Wide(model_.windowTitle).c_str(),
                    MB_OK | MB_ICONWARNING);
    }
    running_ = false;
    if (outcome.closesMenu) {
        run_.End(WindowEnd::Done);
    }
}

LRESULT MenuWindow::Handle(UINT message, WPARAM wide, LPARAM lng) {
    switch (message) {
    case WM_PAINT:
        OnPaint();
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_SIZE:
        Arrange();
        return 0;
    case WM_SYSCOLORCHANGE:
        TakeColors();
        Repaint();
        return 0;
    case DpiChangedMessage:
        OnDpiChanged(LOWORD(wide), *PointerIn<const RECT>(lng));
        return 0;
    case WM_KEYDOWN:
        if (OnKey(wide, WasDownBefore(lng))) {
            return 0;
        }
        break;
    case WM_CLOSE:
        run_.End(WindowEnd::Done);
        return 0;
    case WM_ENDSESSION:
        if (wide != FALSE) {
            run_.End(WindowEnd::Program);
        }
        return 0;
    default:
        return HandlePointer(message, wide, lng);
    }
    return DefWindowProcW(window_, message, wide, lng);
}

LRESULT MenuWindow::HandlePointer(UINT message, WPARAM wide, LPARAM lng) {
    const POINT at{GET_X_LPARAM(lng), GET_Y_LPARAM(lng)};
    switch (message) {
    case WM_MOUSEMOVE:
        OnPointerMove(at);
        return 0;
    case WM_MOUSELEAVE:
        if (selection_.PointerAt(std::nullopt)) {
            ShowSelection();
        }
        return 0;
    case WM_LBUTTONDOWN:
        OnPress(at);
        return 0;
    case WM_LBUTTONUP:
        OnRelease(at);
        return 0;
    case WM_CAPTURECHANGED:
        thumbGrip_.reset();
        selection_.Cancel();
        Repaint();
        return 0;
    case WM_MOUSEWHEEL:
        OnWheel(GET_WHEEL_DELTA_WPARAM(wide));
        return 0;
    case WM_SETCURSOR:
        if (LOWORD(lng) == HTCLIENT) {
            const bool hand = selection_.PointedAt().has_value();
            SetCursor(LoadCursorW(nullptr, hand ? IDC_HAND : IDC_ARROW));
            return TRUE;
        }
        break;
    default:
        break;
    }
    return DefWindowProcW(window_, message, wide, lng);
}

} // namespace tavmoor
