#include "window/paint_buffer.h"

namespace tavmoor {

void PaintBuffered(HWND window, const std::function<void(HDC, Extent)>& paint) {
    PAINTSTRUCT painting{};
    const HDC screen = BeginPaint(window, &painting);
    RECT client{};
    GetClientRect(window, &client);
    const Extent size{static_cast<int>(client.right), static_cast<int>(client.bottom)};
    if (!size.Empty()) {
        const HDC memory = CreateCompatibleDC(screen);
        const HBITMAP canvas = CreateCompatibleBitmap(screen, size.width, size.height);
        const HGDIOBJ before = SelectObject(memory, canvas);
        paint(memory, size);
        BitBlt(screen, 0, 0, size.width, size.height, memory, 0, 0, SRCCOPY);
        SelectObject(memory, before);
        DeleteObject(canvas);
        DeleteDC(memory);
    }
    EndPaint(window, &painting);
}

} // namespace tavmoor
