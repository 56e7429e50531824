#pragma once

#include "settings/shared/panel.h"
#include "support/service_windows.h"

namespace tavmoor::test {

/// A program as it is after its start: the windows of the settings as well.
class ProgramWindows : public ServiceWindows {
protected:
    ProgramWindows();
    ~ProgramWindows() override;

    SkinnedWindow& Main() { return static_cast<SkinnedWindow&>(windows.Open(WindowName::Form1)); }
    /// A panel of the main window, shown in it.
    QWidget& ShowPanel(PanelName name);
};

} // namespace tavmoor::test
