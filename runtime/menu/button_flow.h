#pragma once

#include "menu/layout_request.h"

#include <vector>

namespace tavmoor {

/// How the buttons of a list flow.
struct FlowRules {
    std::size_t first = 0; ///< commands from here on,
    std::size_t count = 0; ///< so many
    int columns = 1;
    bool downFirst = false; ///< fill the columns one after the other, not the rows
};

/// The title of a group among the buttons of a list.
struct GroupTitle {
    MenuGroup group;
    Box box;
};

/// Buttons laid out from 0, 0.
struct ButtonFlow {
    std::vector<Box> buttons;
    std::vector<GroupTitle> groups;
    int height = 0;
};

/// Lays buttons out in columns of equal width. A caption that is too long for one line makes its
/// row high enough for two.
ButtonFlow FlowButtons(const LayoutRequest& request, const FlowRules& rules, int width);

} // namespace tavmoor
