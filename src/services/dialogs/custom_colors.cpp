#include "services/dialogs/custom_colors.h"

namespace tavmoor {

namespace {

CustomColors White() {
    CustomColors colors;
    colors.fill(QColor(255, 255, 255));
    return colors;
}

} // namespace

std::optional<QColor> AskWithCustomColors(ColorRequest request) {
    static CustomColors kept = White();
    request.customColors = kept;
    const auto answer = Dialogs().Color(request);
    if (!answer) {
        return std::nullopt;
    }
    kept = answer->customColors;
    return answer->color;
}

} // namespace tavmoor
