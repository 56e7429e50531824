#pragma once

#include "core/document/project_document.h"

#include <functional>
#include <memory>
#include <variant>

class QWidget;

namespace tavmoor {

/// The user left the menu: nothing is to change.
struct MenuCancelled {
    bool operator==(const MenuCancelled&) const = default;
};

/// The answer of a border menu: the border goes.
struct NoBorder {
    bool operator==(const NoBorder&) const = default;
};

/// How a colour or option menu ended.
using MenuResult = std::variant<MenuCancelled, NoBorder, ColorValue>;

/// Carries the result of a menu to who asked for it, once. The menu, and the windows that it leads
/// to, hold copies of it; all of them stand for the same question.
class MenuAnswer {
public:
    using Use = std::function<void(const MenuResult& result)>;

    /// A menu that nobody waits for.
    MenuAnswer() = default;
    /// @param asking the widget that asks; when it has gone, `use` is not called any more
    MenuAnswer(QWidget& asking, Use use);

    /// Hands the result on; only the first one counts.
    void Give(const MenuResult& result) const;

    /// The widget that waits for the result, for dialogs to be modal to its window; null when it
    /// has gone or has its result.
    [[nodiscard]] QWidget* Waiting() const;

private:
    struct Question;
    std::shared_ptr<Question> question_;
};

} // namespace tavmoor
