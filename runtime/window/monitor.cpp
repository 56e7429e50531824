#include "window/monitor.h"

#include <algorithm>

namespace tavmoor {

namespace {

Box WorkAreaOf(HMONITOR monitor) {
    MONITORINFO info{};
    info.cbSize = sizeof(info);
    GetMonitorInfoW(monitor, &info);
    const RECT& work = info.rcWork;
    return {static_cast<int>(work.left), static_cast<int>(work.top),
            static_cast<int>(work.right - work.left), static_cast<int>(work.bottom - work.top)};
}

} // namespace

POINT CornerOfPointersScreen() {
    POINT pointer{};
    GetCursorPos(&pointer);
    const Box work = WorkAreaOf(MonitorFromPoint(pointer, MONITOR_DEFAULTTOPRIMARY));
    return {work.x, work.y};
}

Box WorkArea(HWND window) {
    return WorkAreaOf(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST));
}

void PlaceInMiddle(HWND window, Extent size) {
    const Box work = WorkArea(window);
    size = {std::min(size.width, work.width), std::min(size.height, work.height)};
    SetWindowPos(window, nullptr, work.x + (work.width - size.width) / 2,
                 work.y + (work.height - size.height) / 2, size.width, size.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace tavmoor
