#include "services/colors/color_tool.h"

#include <utility>

namespace tavmoor {

void ColorTool::Serve(const MenuAnswer& answer) {
    answer_ = answer;
    if (QWidget* asking = answer.Waiting()) {
        // What asked is half gone by then, and must not take a result any more.
        connect(asking, &QObject::destroyed, this, &ColorTool::CloseUnanswered);
        if (auto* window = qobject_cast<ProgramWindow*>(asking->window())) {
            connect(window, &ProgramWindow::Unloaded, this, &SkinnedWindow::Unload);
        }
    }
}

void ColorTool::OnUnload() {
    answer_.Give(MenuCancelled{});
}

MenuAnswer ColorTool::CloseUnanswered() {
    MenuAnswer answer = std::exchange(answer_, {});
    Unload();
    return answer;
}

} // namespace tavmoor
