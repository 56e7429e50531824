#include "services/pictures/emf_player.h"

#include <memory>

#include <windows.h>

namespace tavmoor {

namespace {

struct DeleteMetafile {
    void operator()(HENHMETAFILE file) const noexcept { DeleteEnhMetaFile(file); }
};
struct DeleteBitmap {
    void operator()(HBITMAP bitmap) const noexcept { DeleteObject(bitmap); }
};
struct DeleteContext {
    void operator()(HDC context) const noexcept { DeleteDC(context); }
};
template <typename Handle, typename Deleter>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, Deleter>;

/// Plays the file over a ground of one grey, and gives the pixels, 32 bits each and top row first.
class GroundedPicture {
public:
    GroundedPicture(HENHMETAFILE file, const PixelTarget& target, BYTE ground)
        : context_(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = target.width;
        info.bmiHeader.biHeight = -target.height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        info.bmiHeader.biCompression = BI_RGB;
        bitmap_.reset(CreateDIBSection(context_.get(), &info, DIB_RGB_COLORS, &bits_, nullptr, 0));
        if (!context_ || !bitmap_) {
            return;
        }
        const HGDIOBJ before = SelectObject(context_.get(), bitmap_.get());
        const RECT all{0, 0, target.width, target.height};
        SetDCBrushColor(context_.get(), RGB(ground, ground, ground));
        FillRect(context_.get(), &all, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        isDrawn_ = PlayEnhMetaFile(context_.get(), file, &all) != FALSE;
        GdiFlush();
        SelectObject(context_.get(), before);
    }

    [[nodiscard]] bool IsDrawn() const noexcept { return isDrawn_; }
    [[nodiscard]] const std::uint8_t* Pixels() const noexcept {
        return static_cast<const std::uint8_t*>(bits_);
    }

private:
    Owned<HDC, DeleteContext> context_;
    Owned<HBITMAP, DeleteBitmap> bitmap_;
    void* bits_ = nullptr;
    bool isDrawn_ = false;
};

/// What differs between a black and a white ground is transparent.
void TakeWithAlpha(const std::uint8_t* onBlack, const std::uint8_t* onWhite,
                   const PixelTarget& target) {
    constexpr int PixelBytes = 4;
    for (int y = 0; y < target.height; ++y) {
        std::uint8_t* row = target.pixels + y * target.bytesPerRow;
        for (int x = 0; x < target.width; ++x, onBlack += PixelBytes, onWhite += PixelBytes) {
            std::uint8_t* pixel = row + static_cast<std::ptrdiff_t>(x) * PixelBytes;
            const int alpha = 255 - (onWhite[1] - onBlack[1]);
            const auto cover = static_cast<std::uint8_t>(alpha > 255 ? 255 : alpha);
            for (int i = 0; i < 3; ++i) {
                pixel[i] = onBlack[i] < cover ? onBlack[i] : cover;
            }
            pixel[3] = cover;
        }
    }
}

} // namespace

// GDI draws no alpha; two playings on different grounds tell it.
bool PlayEmf(std::string_view bytes, const MetafileOutline& /*outline*/,
             const PixelTarget& target) {
    const Owned<HENHMETAFILE, DeleteMetafile> file(SetEnhMetaFileBits(
        static_cast<UINT>(bytes.size()), reinterpret_cast<const BYTE*>(bytes.data())));
    if (!file) {
        return false;
    }
    const GroundedPicture onBlack(file.get(), target, 0);
    const GroundedPicture onWhite(file.get(), target, 255);
    if (!onBlack.IsDrawn() || !onWhite.IsDrawn()) {
        return false;
    }
    TakeWithAlpha(onBlack.Pixels(), onWhite.Pixels(), target);
    return true;
}

} // namespace tavmoor
