#include "services/windows/menu_result.h"

#include <QPointer>
#include <QWidget>

#include <utility>

namespace tavmoor {

struct MenuAnswer::Question {
    QPointer<QWidget> asking;
    Use use; ///< empty once it was answered
};

MenuAnswer::MenuAnswer(QWidget& asking, Use use)
    : question_(std::make_shared<Question>(Question{&asking, std::move(use)})) {}

void MenuAnswer::Give(const MenuResult& result) const {
    if (!question_) {
        return;
    }
    const bool waiting = Waiting() != nullptr;
    const Use use = std::exchange(question_->use, nullptr);
    if (waiting) {
        use(result);
    }
}

QWidget* MenuAnswer::Waiting() const {
    return question_ && question_->use ? question_->asking.data() : nullptr;
}

} // namespace tavmoor
