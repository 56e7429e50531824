#pragma once

#include "services/dialogs/message_box.h"
#include "services/system/service_slot.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace tavmoor::test {

/// Answers message boxes with the given answers in turn, OK (or the cautious button) after that,
/// and keeps what came up.
class ScriptedBoxes final : public MessageBoxResponder {
public:
    explicit ScriptedBoxes(std::deque<BoxAnswer> answers = {}) : answers_(std::move(answers)) {}
    ~ScriptedBoxes() override { EXPECT_TRUE(answers_.empty()) << "not every box came up"; }

    BoxAnswer Answer(const MessageBoxRequest& request) override {
        shown.push_back(request);
        meanwhile();
        if (answers_.empty()) {
            EXPECT_EQ(request.buttons, BoxButtons::Ok) << request.text.toStdString();
            return BoxAnswer::Ok;
        }
        const BoxAnswer answer = answers_.front();
        answers_.pop_front();
        return answer;
    }

    /// The only box that came up since the last call, as "title|text".
    std::string One() {
        EXPECT_EQ(shown.size(), ++taken_);
        return shown.empty() ? "" : (shown.back().title + u'|' + shown.back().text).toStdString();
    }

    std::vector<MessageBoxRequest> shown;
    std::function<void()> meanwhile = [] {}; ///< takes place while a box is open

private:
    std::size_t taken_ = 0;
    std::deque<BoxAnswer> answers_;
    ScopedService<MessageBoxResponder> slot_{*this};
};

} // namespace tavmoor::test
