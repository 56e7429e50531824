#include "menu/screen_layout.h"

#include <algorithm>

namespace tavmoor {

namespace {

constexpr int TextMargin = 20;    ///< pixels at 96 dpi
constexpr int LeastPoints = 6;    ///< a text is not made smaller
constexpr Extent LeastSize{8, 8}; ///< of a window that can be seen, pixels
/// A picture with less than this part of the look's size is no measure for the window.
constexpr int LeastPictureShare = 2;

Extent Scaled(Extent size, int dpi) {
    return {ToPixels(size.width, dpi), ToPixels(size.height, dpi)};
}

Extent AtLeast(Extent size, Extent least) {
    return {std::max(size.width, least.width), std::max(size.height, least.height)};
}

/// A size with the missing sides taken from `measure`; one missing side keeps its ratio.
Extent FillIn(Extent given, Extent measure) {
    if (given.width > 0 && given.height > 0) {
        return given;
    }
    if (given.width > 0) {
        return {given.width, given.width * measure.height / measure.width};
    }
    if (given.height > 0) {
        return {given.height * measure.width / measure.height, given.height};
    }
    return measure;
}

bool IsMeasure(Extent picture, Extent own) {
    return picture.width * LeastPictureShare >= own.width &&
           picture.height * LeastPictureShare >= own.height;
}

Box Put(Extent size, Extent client, ScreenPlace place, int margin) {
    const int right = client.width - margin - size.width;
    const int bottom = client.height - margin - size.height;
    const int middleX = (client.width - size.width) / 2;
    const int middleY = (client.height - size.height) / 2;
    switch (place) {
    case ScreenPlace::TopLeft:
        return {margin, margin, size.width, size.height};
    case ScreenPlace::TopRight:
        return {right, margin, size.width, size.height};
    case ScreenPlace::TopCenter:
        return {middleX, margin, size.width, size.height};
    case ScreenPlace::BottomLeft:
        return {margin, bottom, size.width, size.height};
    case ScreenPlace::BottomRight:
        return {right, bottom, size.width, size.height};
    case ScreenPlace::BottomCenter:
        return {middleX, bottom, size.width, size.height};
    case ScreenPlace::Center:
        break;
    }
    return {middleX, middleY, size.width, size.height};
}

TextAlign AlignAt(ScreenPlace place) {
    switch (place) {
    case ScreenPlace::TopLeft:
    case ScreenPlace::BottomLeft:
        return TextAlign::Left;
    case ScreenPlace::TopRight:
    case ScreenPlace::BottomRight:
        return TextAlign::Right;
    default:
        return TextAlign::Center;
    }
}

void PlacePicture(const ScreenRequest& request, Extent client, ScreenLayout& layout) {
    if (request.picture.Empty()) {
        return;
    }
    const Extent natural = Scaled(request.picture, request.dpi);
    layout.pictureCovers = !request.model.picturePlace && IsMeasure(natural, client);
    if (layout.pictureCovers) {
        layout.picture = {0, 0, client.width, client.height};
        return;
    }
    layout.picture = Put(ShrinkInto(natural, client), client,
                         request.model.picturePlace.value_or(ScreenPlace::Center), 0);
}

void PlaceText(const ScreenRequest& request, Extent client, ScreenLayout& layout) {
    const MenuText& text = request.model.text;
    layout.font = ChooseFont(text.font, request.look.fonts.title);
    layout.align = AlignAt(request.model.textPlace);
    if (text.text.empty()) {
        return;
    }
    const int margin =
        std::min({ToPixels(TextMargin, request.dpi), client.width / 8, client.height / 8});
    const Extent most{std::max(client.width - 2 * margin, 1),
                      std::max(client.height - 2 * margin, 1)};
    Extent size = request.meter.Measure(text.text, layout.font, most.width);
    while (layout.font.points > LeastPoints &&
           (size.width > most.width || size.height > most.height)) {
        --layout.font.points;
        size = request.meter.Measure(text.text, layout.font, most.width);
    }
    // As wide as the window leaves it: a slanted letter may reach over the measured end.
    layout.text = Put({most.width, std::min(size.height, most.height)}, client,
                      request.model.textPlace, margin);
}

} // namespace

Extent ChooseScreenSize(const ScreenRequest& request, Extent most) {
    const Extent own = request.look.screenSize;
    Extent measure = own;
    const bool alone = request.model.text.text.empty();
    if (!request.picture.Empty() && (alone || IsMeasure(request.picture, own))) {
        const Extent pixels = Scaled(request.picture, request.dpi);
        const bool fits = pixels.width <= most.width && pixels.height <= most.height;
        measure = fits ? request.picture : AtLeast(ShrinkInto(request.picture, own), {1, 1});
    }
    const Extent size = ShrinkInto(Scaled(FillIn(request.model.size, measure), request.dpi), most);
    return AtLeast(size, LeastSize);
}

ScreenLayout ArrangeScreen(const ScreenRequest& request, Extent client) {
    ScreenLayout layout;
    PlacePicture(request, client, layout);
    PlaceText(request, client, layout);
    return layout;
}

ScreenColors ChooseScreenColors(const ScreenModel& model, const SystemColors& system) {
    constexpr ColorValue leftBlack = 0;
    const Argb back = SolidColor(model.color, system);
    const Argb text = SolidColor(model.text.color, system);
    return {back, model.text.color == leftBlack ? ReadableOn(back, text) : text};
}

} // namespace tavmoor
