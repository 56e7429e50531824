#pragma once

#include "services/windows/window_registry.h"

namespace tavmoor {

/// Where the design panel and the main window stand beside each other; left ends in twips from the
/// left end of the screen.
struct PanelPlacing {
    int mainLeft = 0;
    int panelLeft = 0;

    bool operator==(const PanelPlacing&) const = default;
};

/// Puts the design panel to the right of the main window, with a gap that grows with the distance
/// from the screen's left end. Where the panel would leave the screen, the main window moves left
/// so that both stand in the middle together, or to 0 when they are wider than the screen. All in
/// twips.
PanelPlacing PlaceDesignPanel(int mainLeft, int mainWidth, int panelWidth, int screenWidth);

/// Does what the project's template allows, after it was chosen or a project was opened: opens the
/// design panel `Form17` beside the main window, or closes it and the canvas `Form16`.
void ApplyTemplateCapabilities(ProgramContext context);

} // namespace tavmoor
