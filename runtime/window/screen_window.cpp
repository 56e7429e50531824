#include "window/screen_window.h"

#include "window/monitor.h"
#include "window/paint_buffer.h"
#include "window/screen_dpi.h"
#include "window/wide_text.h"
#include "window/window_icons.h"

namespace tavmoor {

namespace {

constexpr const wchar_t* ClassName = L"TavmoorAutorunScreen";
constexpr UINT_PTR TimeIsOver = 1;
constexpr UINT MillisecondsPerSecond = 1000;

UINT DrawAlign(TextAlign align) {
    switch (align) {
    case TextAlign::Left:
        return DT_LEFT;
    case TextAlign::Right:
        return DT_RIGHT;
    case TextAlign::Center:
        break;
    }
    return DT_CENTER;
}

bool IsClosingKey(WPARAM key) {
    return key == VK_ESCAPE || key == VK_RETURN || key == VK_SPACE;
}

} // namespace

ScreenWindow::ScreenWindow(AutorunDisc& disc, const Look& look, ScreenModel model)
    : disc_(disc), look_(look), model_(std::move(model)), pictures_(disc) {}

bool ScreenWindow::Show(HINSTANCE instance) {
    if (!model_.shown) {
        return false;
    }
    RegisterWindowClass(instance, ClassName, WindowProcedure<ScreenWindow>, ProgramIcon);
    const POINT corner = CornerOfPointersScreen();
    CreateWindowExW(0, ClassName, Wide(WindowTitle(disc_.Document())).c_str(), WS_POPUP, corner.x,
                    corner.y, 1, 1, nullptr, nullptr, instance, this);
    if (window_ == nullptr) {
        return false;
    }
    GiveIcons(window_, instance, disc_);
    TakeDpi(DpiOf(window_));
    ShowWindow(window_, SW_SHOWNORMAL);
    SetForegroundWindow(window_);
    UpdateWindow(window_);
    SetTimer(window_, TimeIsOver, static_cast<UINT>(model_.seconds) * MillisecondsPerSecond,
             nullptr);
    return true;
}

void ScreenWindow::Close() {
    if (window_ != nullptr) {
        DestroyWindow(window_);
        window_ = nullptr;
    }
}

ScreenRequest ScreenWindow::Request() {
    return {model_, look_, *drawing_, pictures_.NaturalSize(model_.picture), dpi_};
}

void ScreenWindow::TakeDpi(int dpi) {
    dpi_ = dpi;
    drawing_ = std::make_unique<GdiFonts>(dpi);
    const Box work = WorkArea(window_);
    PlaceInMiddle(window_, ChooseScreenSize(Request(), {work.width, work.height}));
    InvalidateRect(window_, nullptr, FALSE);
}

void ScreenWindow::Paint(HDC target, Extent client) {
    const ScreenLayout layout = ArrangeScreen(Request(), client);
    const ScreenColors colors = ChooseScreenColors(model_, GetSysColor);
    Gdiplus::Graphics graphics(target);
    graphics.Clear(colors.back);
    const Box& place = layout.picture;
    if (Gdiplus::Bitmap* picture =
            pictures_.Scaled(model_.picture, {place.width, place.height},
                             layout.pictureCovers ? PictureFit::Cover : PictureFit::Stretch)) {
        graphics.DrawImage(picture, place.x, place.y, place.width, place.height);
    }
    graphics.Flush(Gdiplus::FlushIntentionSync);
    drawing_->Draw(target, model_.text.text, layout.font, colors.text, layout.text,
                   DrawAlign(layout.align));
}

LRESULT ScreenWindow::Handle(UINT message, WPARAM wide, LPARAM lng) {
    switch (message) {
    case WM_PAINT:
        PaintBuffered(window_, [this](HDC target, Extent client) { Paint(target, client); });
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case DpiChangedMessage:
        TakeDpi(LOWORD(wide));
        return 0;
    case WM_TIMER:
        run_.End(WindowEnd::Done);
        return 0;
    case WM_CLOSE:
        run_.End(WindowEnd::Program);
        return 0;
    case WM_ENDSESSION:
        if (wide != FALSE) {
            run_.End(WindowEnd::Program);
        }
        return 0;
    default:
        return HandleInput(message, wide, lng);
    }
}

LRESULT ScreenWindow::HandleInput(UINT message, WPARAM wide, LPARAM lng) {
    switch (message) {
    case WM_LBUTTONDOWN:
        pressed_ = true;
        return 0;
    case WM_LBUTTONUP:
        // One that was pressed elsewhere is no click on this window.
        if (pressed_ && model_.clickCloses) {
            run_.End(WindowEnd::Done);
        }
        return 0;
    case WM_KEYDOWN:
        // A key may still be held that brought this window.
        if (model_.clickCloses && IsClosingKey(wide) && !WasDownBefore(lng)) {
            run_.End(WindowEnd::Done);
        }
        return 0;
    case WM_SETCURSOR:
        SetCursor(LoadCursorW(nullptr, model_.clickCloses ? IDC_HAND : IDC_ARROW));
        return TRUE;
    default:
        return DefWindowProcW(window_, message, wide, lng);
    }
}

} // namespace tavmoor
