#pragma once

#include "services/program_session.h"
#include "services/skinned_window.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>

namespace tavmoor::test {

/// Stands in place of the colour menu: each time it comes up, it gives the next answer, a decimal
/// colour or CancelledResult.
class ScriptedColors {
public:
    ScriptedColors(ProgramContext context, std::deque<std::string> answers)
        : answers_(std::move(answers)) {
        context.windows.Register(WindowName::menu2,
                                 [this, context] { return new Menu(context, *this); });
    }
    ScriptedColors(const ScriptedColors&) = delete;
    ScriptedColors& operator=(const ScriptedColors&) = delete;
    ~ScriptedColors() { EXPECT_TRUE(answers_.empty()) << "not every colour was asked for"; }

    std::vector<QPoint> places; ///< where it came up

private:
    class Menu final : public SkinnedWindow {
    public:
        Menu(ProgramContext context, ScriptedColors& script)
            : SkinnedWindow(context, {.name = WindowName::menu2, .objectName = "menu2"}),
              script_(script) {}

    protected:
        void showEvent(QShowEvent* event) override {
            SkinnedWindow::showEvent(event);
            script_.places.push_back(pos());
            ASSERT_FALSE(script_.answers_.empty());
            Session().MenuResult = script_.answers_.front();
            script_.answers_.pop_front();
        }

    private:
        ScriptedColors& script_;
    };

    std::deque<std::string> answers_;
};

} // namespace tavmoor::test
