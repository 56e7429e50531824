#include "services/colors/color_picture_fit.h"

#include "services/values/twips.h"

#include <algorithm>

namespace tavmoor {

namespace {

// Twips.
constexpr double MostWidth = 4455;
constexpr double MostHeight = 2655;
constexpr double LeastSide = TwipsPerPixel;
constexpr double MostSide = 16383.0 * TwipsPerPixel;

} // namespace

PictureFit FitToArea(double width, double height, double areaWidth, double areaHeight) {
    PictureFit fit{0, 0, width, height};
    if ((width > MostWidth || height > MostHeight) && width > height) {
        fit.width = MostWidth;
        fit.height = MostWidth * height / width;
    }
    if (fit.height > MostHeight) {
        fit.height = MostHeight;
        fit.width = MostHeight * width / height;
    }
    fit.left = areaWidth / 2 - fit.width / 2;
    fit.top = areaHeight / 2 - fit.height / 2;
    return fit;
}

std::optional<PictureFit> Zoomed(const PictureFit& fit, double factor) {
    PictureFit zoomed = fit;
    zoomed.width *= factor;
    zoomed.height *= factor;
    // A very long and thin picture may be below the least side from the start; it can grow still.
    const bool allowed = factor > 1 ? std::max(zoomed.width, zoomed.height) <= MostSide
                                    : std::min(zoomed.width, zoomed.height) >= LeastSide;
    return allowed ? std::optional(zoomed) : std::nullopt;
}

} // namespace tavmoor
