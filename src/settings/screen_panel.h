#pragma once

#include "settings/panel.h"

namespace tavmoor {

/// What differs between the two panels.
struct ScreenPanelDescription {
    const char* frame;
    const char16_t* heading;
};

extern const ScreenPanelDescription SplashScreenPanel; ///< `Frame9`
extern const ScreenPanelDescription ExitScreenPanel;   ///< `Frame12`

/// `Frame9` and `Frame12`, the splash and the exit screen: one panel with two descriptions.
class ScreenPanel final : public Panel {
    Q_OBJECT

public:
    ScreenPanel(const ScreenPanelDescription& description, ProgramContext context, QWidget* parent);
};

} // namespace tavmoor
