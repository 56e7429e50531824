#include "services/windows/design_panel_place.h"

#include "services/windows/window_registry.h"

#include <QScreen>

namespace tavmoor {

std::optional<QPoint> PlaceBesidePanel(const QRect& window, const QRect& panel,
                                       const QRect& screen) {
    if (!window.intersects(panel)) {
        return std::nullopt;
    }
    if (window.width() + panel.width() > screen.width()) {
        return QPoint(screen.center().x() - window.width() / 2, window.top());
    }
    const int roomLeft = panel.left() - screen.left();
    const int roomRight = screen.right() - panel.right();
    const int left = roomLeft >= roomRight ? panel.left() - window.width() : panel.right() + 1;
    return QPoint(qBound(screen.left(), left, screen.right() + 1 - window.width()), window.top());
}

void KeepOutFromUnderDesignPanel(QWidget& window, WindowName name, const WindowRegistry& windows) {
    const ProgramWindow* panel = windows.Find(WindowName::Form17);
    if (panel == nullptr || !panel->isVisible() || name == WindowName::Form17 ||
        name == WindowName::Form16) {
        return;
    }
    if (const auto place = PlaceBesidePanel(window.frameGeometry(), panel->frameGeometry(),
                                            window.screen()->availableGeometry())) {
        window.move(*place);
    }
}

} // namespace tavmoor
