#pragma once

#include <optional>

namespace tavmoor {

/// Where the picture to pick a colour from lies in its clipping area, in twips.
struct PictureFit {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

inline constexpr double ZoomInFactor = 1.2;
inline constexpr double ZoomOutFactor = 0.8;
inline constexpr double PanStep = 400; ///< twips

/// Fits a picture into 4455 by 2655 twips, keeping its proportions; a smaller one keeps its size.
/// It comes to lie in the middle of the area. All in twips.
PictureFit FitToArea(double width, double height, double areaWidth, double areaHeight);

/// The picture with its sides times the factor, its upper left corner staying in place.
/// @return nothing when a side would shrink below a pixel or grow beyond what a window can be
std::optional<PictureFit> Zoomed(const PictureFit& fit, double factor);

} // namespace tavmoor
