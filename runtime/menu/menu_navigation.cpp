#include "menu/menu_navigation.h"

#include <cstdlib>
#include <limits>
#include <utility>

namespace tavmoor {

namespace {

struct Point {
    int x;
    int y;
};

/// The middle of a button in the whole list; what stands below the list comes behind its end.
Point MiddleOf(const MenuLayout& layout, std::size_t button) {
    const Box& box = layout.buttons[button];
    const int behind = button < layout.firstFixed ? 0 : layout.MostScroll();
    return {box.x + box.width / 2, box.y + behind + box.height / 2};
}

/// How far `to` lies that way; nothing when it lies another way.
std::optional<long long> Distance(Point from, Point to, MenuMove move) {
    const int dx = to.x - from.x;
    const int dy = to.y - from.y;
    const bool vertical = move == MenuMove::Up || move == MenuMove::Down;
    const bool backward = move == MenuMove::Up || move == MenuMove::Left;
    const int along = (vertical ? dy : dx) * (backward ? -1 : 1);
    const int aside = std::abs(vertical ? dx : dy);
    if (along <= 0 || (!vertical && aside > along)) {
        return std::nullopt;
    }
    constexpr long long asideWeight = 3;
    return along + asideWeight * aside;
}

std::size_t Nearest(const MenuLayout& layout, std::size_t from, Point target, MenuMove move) {
    std::size_t best = from;
    long long bestDistance = std::numeric_limits<long long>::max();
    for (std::size_t button = 0; button < layout.buttons.size(); ++button) {
        const auto distance = Distance(target, MiddleOf(layout, button), move);
        if (button != from && distance && *distance < bestDistance) {
            best = button;
            bestDistance = *distance;
        }
    }
    return best;
}

/// The farthest button of the same column that lies within one page.
std::size_t OnePage(const MenuLayout& layout, std::size_t from, MenuMove way) {
    const Point start = MiddleOf(layout, from);
    std::size_t button = from;
    for (;;) {
        const std::size_t next = Nearest(layout, button, MiddleOf(layout, button), way);
        if (next == button || std::abs(MiddleOf(layout, next).y - start.y) > layout.list.height) {
            return button;
        }
        button = next;
    }
}

} // namespace

std::size_t ButtonAfter(const MenuLayout& layout, std::optional<std::size_t> from, MenuMove move) {
    const std::size_t last = layout.buttons.size() - 1;
    if (!from) {
        return move == MenuMove::Previous || move == MenuMove::Last ? last : 0;
    }
    switch (move) {
    case MenuMove::Next:
        return *from == last ? 0 : *from + 1;
    case MenuMove::Previous:
        return *from == 0 ? last : *from - 1;
    case MenuMove::First:
        return 0;
    case MenuMove::Last:
        return last;
    case MenuMove::PageUp:
        return OnePage(layout, *from, MenuMove::Up);
    case MenuMove::PageDown:
        return OnePage(layout, *from, MenuMove::Down);
    default:
        return Nearest(layout, *from, MiddleOf(layout, *from), move);
    }
}

bool MenuSelection::PointerAt(std::optional<std::size_t> button) {
    if (button == hovered_) {
        return false;
    }
    hovered_ = button;
    byKey_ = false;
    return true;
}

std::optional<std::size_t> MenuSelection::Release() {
    const auto clicked = pressed_ == hovered_ ? pressed_ : std::nullopt;
    if (clicked) {
        focused_ = clicked;
    }
    pressed_.reset();
    return clicked;
}

void MenuSelection::FocusByKey(std::size_t button) {
    focused_ = button;
    byKey_ = true;
}

bool MenuSelection::TakeArrival() {
    const auto before = std::exchange(arrivedAt_, Told());
    return arrivedAt_ && arrivedAt_ != before;
}

ButtonState MenuSelection::StateOf(std::size_t button) const {
    if (pressed_ == button && hovered_ == button) {
        return ButtonState::Pressed;
    }
    const bool told = Told() == button && (!pressed_ || pressed_ == button);
    return told ? ButtonState::Hover : ButtonState::Normal;
}

} // namespace tavmoor
