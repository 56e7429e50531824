#pragma once

#include "menu/button_flow.h"
#include "menu/layout_request.h"

#include <optional>
#include <vector>

namespace tavmoor {

/// Where everything stands. Buttons and group titles of the list stand as if it were not scrolled.
struct MenuLayout {
    Box header;
    Box logoPicture;
    Box title;
    Box logoText;
    Box picture;
    Box description;

    Box list;                       ///< the part of the window through which the list shows
    int listHeight = 0;             ///< of the whole list
    Box scrollBar;                  ///< empty when the list shows as a whole
    std::vector<Box> buttons;       ///< one for each command, in their order
    std::vector<GroupTitle> groups; ///< in the order of the list
    /// Commands from this one on stand below the list and do not scroll with it.
    std::size_t firstFixed = 0;

    [[nodiscard]] int MostScroll() const;
    [[nodiscard]] bool IsFixed(MenuGroup group) const;
    /// The box of a button when the list is scrolled down by so many pixels.
    [[nodiscard]] Box ButtonBox(std::size_t button, int scroll) const;
    /// The button under a point, as far as it shows.
    [[nodiscard]] std::optional<std::size_t> ButtonAt(int x, int y, int scroll) const;
    /// The scroll position nearest to `scroll` at which a button shows as a whole.
    [[nodiscard]] int ScrollToShow(std::size_t button, int scroll) const;
    /// The part of the scroll bar that says where the list stands.
    [[nodiscard]] Box ScrollThumb(int scroll) const;
    /// The scroll position at which the thumb's top lies at `y`.
    [[nodiscard]] int ScrollOfThumb(int y) const;
};

MenuLayout ArrangeMenu(const LayoutRequest& request);

/// Where the two texts of a description stand.
struct DescriptionBoxes {
    Box panel;
    Box title;
    Box text;
};

DescriptionBoxes PlaceDescription(const LayoutRequest& request, const MenuLayout& layout,
                                  const Description& description);

} // namespace tavmoor
