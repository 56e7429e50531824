#include "services/colors/color_picture_fit.h"

#include "services/colors/color_picture_view.h"

#include <gtest/gtest.h>

namespace tavmoor {

TEST(ColorPictureFit, ScalesIntoItsBoundsAndCentresInTheArea) {
    struct Case {
        const char* name;
        double width, height;
        double fittedWidth, fittedHeight;
    };
    const Case cases[] = {
        {"small", 600, 300, 600, 300},
        {"wide", 9000, 3000, 4455, 1485},
        {"tall", 3000, 9000, 885, 2655},
        {"square", 6000, 6000, 2655, 2655},
        {"wide, and still too high for its width", 4950, 4400, 2655.0 * 4950 / 4400, 2655},
        {"too high alone", 2700, 5310, 1350, 2655},
    };
    for (const Case& c : cases) {
        const PictureFit fit = FitToArea(c.width, c.height, 4500, 2700);
        EXPECT_DOUBLE_EQ(fit.width, c.fittedWidth) << c.name;
        EXPECT_DOUBLE_EQ(fit.height, c.fittedHeight) << c.name;
        EXPECT_DOUBLE_EQ(fit.left, (4500 - c.fittedWidth) / 2) << c.name;
        EXPECT_DOUBLE_EQ(fit.top, (2700 - c.fittedHeight) / 2) << c.name;
    }
}

TEST(ColorPictureFit, ZoomEndsWhereAPictureCouldNotBeShown) {
    PictureFit fit{150, 75, 3000, 15};
    EXPECT_FALSE(Zoomed(fit, ZoomOutFactor));
    int steps = 0;
    while (const auto larger = Zoomed(fit, ZoomInFactor)) {
        fit = *larger;
        ++steps;
    }
    EXPECT_EQ(steps, 24);
    EXPECT_DOUBLE_EQ(fit.left, 150);
    // One that is a hair's breadth from the start can still be made larger.
    EXPECT_TRUE(Zoomed({0, 0, 0.5, 2655}, ZoomInFactor));
}

TEST(ColorPictureFit, APixelOutsideIsNone) {
    QImage image(2, 1, QImage::Format_RGB32);
    image.fill(QColor(1, 2, 3));
    EXPECT_EQ(PixelColor(image, {1, 0}), 0x030201);
    EXPECT_EQ(PixelColor(image, {2, 0}), NoPixel);
    EXPECT_EQ(PixelColor(image, {0, -1}), NoPixel);
}

} // namespace tavmoor
