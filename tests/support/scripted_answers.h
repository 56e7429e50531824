#pragma once

#include "services/dialogs/message_box.h"
#include "services/system/service_slot.h"

#include <gtest/gtest.h>

#include <deque>
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
        if (answers_.empty()) {
            EXPECT_EQ(request.buttons, BoxButtons::Ok) << request.text.toStdString();
            return BoxAnswer::Ok;
        }
        const BoxAnswer answer = answers_.front();
        answers_.pop_front();
        return answer;
    }

    std::vector<MessageBoxRequest> shown;

private:
    std::deque<BoxAnswer> answers_;
    ScopedService<MessageBoxResponder> slot_{*this};
};

} // namespace tavmoor::test
