#pragma once

#include "menu/menu_layout.h"

#include <cstdint>
#include <optional>

namespace tavmoor {

enum class MenuMove : std::uint8_t {
    Next,
    Previous,
    Up,
    Down,
    Left,
    Right,
    PageUp,
    PageDown,
    First,
    Last,
};

/// The button that a key leads to. Next and Previous go around; the others stay where they are when
/// nothing lies that way.
/// @param from the button with the focus; nothing when none has it yet
std::size_t ButtonAfter(const MenuLayout& layout, std::optional<std::size_t> from, MenuMove move);

/// Which button the pointer and the keyboard are at.
class MenuSelection {
public:
    /// The pointer is over a button or over none.
    /// @return true when it was elsewhere before
    bool PointerAt(std::optional<std::size_t> button);
    /// The pointer's button goes down where PointerAt told last.
    void Press() { pressed_ = hovered_; }
    /// The pointer's button comes up.
    /// @return the button that was clicked: pressed and let go at the same one
    std::optional<std::size_t> Release();
    /// The press ends without a click.
    void Cancel() { pressed_.reset(); }
    /// The keyboard went to a button; it stays in charge until the pointer comes to another one.
    void FocusByKey(std::size_t button);

    [[nodiscard]] std::optional<std::size_t> PointedAt() const { return hovered_; }
    [[nodiscard]] std::optional<std::size_t> Focused() const { return focused_; }
    /// The button that wears the focus frame: none as long as only the pointer is used.
    [[nodiscard]] std::optional<std::size_t> Framed() const {
        return byKey_ ? focused_ : std::nullopt;
    }
    /// The button whose description is told.
    [[nodiscard]] std::optional<std::size_t> Told() const { return byKey_ ? focused_ : hovered_; }
    /// True once after each time that the description's button became another one.
    bool TakeArrival();
    [[nodiscard]] ButtonState StateOf(std::size_t button) const;

private:
    std::optional<std::size_t> hovered_;
    std::optional<std::size_t> pressed_;
    std::optional<std::size_t> focused_;
    std::optional<std::size_t> arrivedAt_; ///< what TakeArrival has seen
    bool byKey_ = false;
};

} // namespace tavmoor
