#include "settings/template/template_capabilities.h"

#include "services/values/twips.h"
#include "services/windows/program_session.h"
#include "services/windows/window_registry.h"
#include "templates/template_descriptor.h"

#include <QGuiApplication>
#include <QScreen>

namespace tavmoor {

namespace {

/// The gap's factor 1.003, in thousandths: whole numbers keep the truncation exact.
constexpr int Whole = 1000;
constexpr int WithGap = 1003;

int LeftBeside(int mainLeft, int mainWidth) {
    return static_cast<int>(static_cast<qint64>(mainLeft + mainWidth) * WithGap / Whole);
}

QRect ScreenOf(const QRect& window) {
    const QScreen* screen = QGuiApplication::screenAt(window.center());
    return (screen != nullptr ? screen : QGuiApplication::primaryScreen())->geometry();
}

void OpenDesignPanel(WindowRegistry& windows) {
    ProgramWindow& panel = windows.Load(WindowName::Form17);
    MainWindowCommands& main = *windows.Main();
    const QRect place = main.Geometry();
    const QRect screen = ScreenOf(place);
    const int mainLeft = place.left() - screen.left();
    const PanelPlacing placing = PlaceDesignPanel(TwipsOf(mainLeft), TwipsOf(place.width()),
                                                  TwipsOf(panel.width()), TwipsOf(screen.width()));
    main.MoveTo({screen.left() + PixelsOf(placing.mainLeft), place.top()});
    panel.move(screen.left() + PixelsOf(placing.panelLeft), place.top());
    panel.resize(panel.width(), place.height());
    panel.Present();
}

} // namespace

PanelPlacing PlaceDesignPanel(int mainLeft, int mainWidth, int panelWidth, int screenWidth) {
    const int left = LeftBeside(mainLeft, mainWidth);
    if (left + panelWidth <= screenWidth) {
        return {mainLeft, left};
    }
    const qint64 total = static_cast<qint64>(mainWidth) * WithGap + qint64{Whole} * panelWidth;
    const qint64 middle = (qint64{Whole} * screenWidth - total) / (2 * Whole);
    const int moved = static_cast<int>(qMax<qint64>(middle, 0));
    return {moved, LeftBeside(moved, mainWidth)};
}

void ApplyTemplateCapabilities(ProgramContext context) {
    if (!TemplateAcceptsEditor(context.session.document.OsnovnaPodesavanja.Sablon)) {
        context.windows.Unload(WindowName::Form17);
        context.windows.Unload(WindowName::Form16);
    } else if (context.windows.Stands(WindowName::Form17)) {
        OpenDesignPanel(context.windows);
    }
}

} // namespace tavmoor
