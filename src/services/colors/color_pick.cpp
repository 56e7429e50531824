#include "services/colors/color_pick.h"

#include "services/colors/color_menu.h"
#include "services/system/wait_loop.h"
#include "services/values/color_value.h"
#include "services/windows/program_session.h"
#include "services/windows/window_placing.h"

#include <QGuiApplication>
#include <QScreen>

namespace tavmoor {

namespace {

void CloseColorTools(WindowRegistry& windows) {
    windows.Unload(WindowName::menu2);
    windows.Unload(WindowName::PicPrev);
}

void ShowColorMenu(WindowRegistry& windows, QPoint place, QWidget* asking) {
    SkinnedWindow& menu = windows.Load(WindowName::menu2);
    if (auto* colorMenu = qobject_cast<menu2*>(&menu)) {
        colorMenu->SetAsking(asking);
    }
    menu.adjustSize();
    const QScreen* screen = QGuiApplication::screenAt(place);
    const QRect area = (screen != nullptr ? screen : menu.screen())->availableGeometry();
    menu.move(KeepOnScreen({place, menu.size()}, area));
    menu.Present();
}

} // namespace

std::optional<ColorValue> PickColor(ProgramContext context, QPoint place, const QWidget& waiting) {
    ProgramSession& session = context.session;
    // A choice that is still open ends as a cancelled one, so the result is cleared after it.
    CloseColorTools(context.windows);
    session.MenuResult.clear();
    const int pick = ++session.colorPicks;
    ShowColorMenu(context.windows, place, waiting.window());
    const auto done = [&] { return session.colorPicks != pick || !session.MenuResult.empty(); };
    const bool answered = WaitUntil(done, waiting.window());
    if (session.colorPicks != pick) {
        // Another choice began while this one waited; what is open now, and the result, is its.
        return std::nullopt;
    }
    if (!answered) {
        CloseColorTools(context.windows);
    }
    const auto color =
        session.MenuResult == CancelledResult ? std::nullopt : ParseColorText(session.MenuResult);
    session.MenuResult.clear();
    return color;
}

QPoint ColorMenuPlace(const QWidget& control) {
    return control.mapToGlobal(QPoint(control.width() * 12 / 10, 0));
}

} // namespace tavmoor
