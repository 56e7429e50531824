#include "services/colors/color_pick.h"

#include "services/windows/program_session.h"
#include "services/windows/window_placing.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <utility>

namespace tavmoor {

namespace {

void CloseColorTools(WindowRegistry& windows) {
    windows.Unload(WindowName::menu2);
    windows.Unload(WindowName::PicPrev);
}

void ShowColorMenu(WindowRegistry& windows, QPoint place) {
    ProgramWindow& menu = windows.Load(WindowName::menu2);
    menu.adjustSize();
    const QScreen* screen = QGuiApplication::screenAt(place);
    const QRect area = (screen != nullptr ? screen : menu.screen())->availableGeometry();
    menu.move(KeepOnScreen({place, menu.size()}, area));
    menu.Present();
}

} // namespace

void PickColor(ProgramContext context, QPoint place, QWidget& asking, MenuAnswer::Use use) {
    // A choice that is still open, which may stand in a dialog, ends as a cancelled one.
    context.session.menuAnswer.Give(MenuCancelled{});
    CloseColorTools(context.windows);
    context.session.menuAnswer = MenuAnswer(asking, std::move(use));
    ShowColorMenu(context.windows, place);
}

QPoint ColorMenuPlace(const QWidget& control) {
    return control.mapToGlobal(QPoint(control.width() * 12 / 10, 0));
}

} // namespace tavmoor
