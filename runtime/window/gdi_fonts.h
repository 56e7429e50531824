#pragma once

#include "menu/look.h"
#include "menu/text_meter.h"

#include <windows.h>

#include <vector>

namespace tavmoor {

/// The system's fonts for one resolution, made as they are asked for; measures and draws with them.
class GdiFonts final : public TextMeter {
public:
    explicit GdiFonts(int dpi);
    GdiFonts(const GdiFonts&) = delete;
    GdiFonts& operator=(const GdiFonts&) = delete;
    ~GdiFonts() override;

    [[nodiscard]] Extent Measure(const std::string& text, const MenuFont& font,
                                 int mostWidth) const override;
    [[nodiscard]] int LineHeight(const MenuFont& font) const override;

    /// Draws a text into a box, wrapped at its width and cut with an ellipsis at its end.
    /// @param align DT_LEFT, DT_CENTER or DT_RIGHT
    void Draw(HDC target, const std::string& text, const MenuFont& font, Argb color, const Box& box,
              UINT align) const;

private:
    struct Made {
        MenuFont font;
        HFONT handle;
    };

    HFONT Handle(const MenuFont& font) const;

    int dpi_;
    HDC measuring_;
    mutable std::vector<Made> made_;
};

} // namespace tavmoor
