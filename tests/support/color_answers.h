#pragma once

#include "services/windows/program_session.h"
#include "support/plain_window.h"

#include <deque>
#include <memory>

namespace tavmoor::test {

/// Stands in for the colour menu: the next choices have these results, as soon as they begin.
inline void AnswerColorChoices(ProgramContext context, std::deque<MenuResult> results) {
    const auto left = std::make_shared<std::deque<MenuResult>>(std::move(results));
    PlainWindow::Register(context, WindowName::menu2, [context, left] {
        const MenuResult result = left->front();
        left->pop_front();
        context.session.menuAnswer.Give(result);
    });
}

} // namespace tavmoor::test
