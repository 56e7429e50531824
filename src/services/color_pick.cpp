#include "services/color_pick.h"

#include "core/number_text.h"
#include "services/color_value.h"
#include "services/program_session.h"
#include "services/skinned_window.h"
#include "services/wait_loop.h"

namespace tavmoor {

std::optional<ColorValue> PickColor(ProgramContext context, QPoint place, const QWidget& waiting) {
    std::string& result = context.session.MenuResult;
    result.clear();
    context.windows.Unload(WindowName::menu2);
    SkinnedWindow& menu = context.windows.Load(WindowName::menu2);
    menu.move(place);
    menu.Present();
    WaitUntil([&result] { return !result.empty(); }, waiting.window());
    const auto color = result == CancelledResult ? std::nullopt : ParseColorText(result);
    result.clear();
    return color;
}

QPoint ColorMenuPlace(const QWidget& control) {
    return control.mapToGlobal(QPoint(control.width() * 12 / 10, 0));
}

} // namespace tavmoor
