#pragma once

#include "services/colors/color_tool.h"

namespace tavmoor {

/// `menu2`, the colour menu: a colour comes from the palette or from a picture. It serves the
/// session's menuAnswer; PickColor opens it.
class menu2 final : public ColorTool {
    Q_OBJECT

public:
    explicit menu2(ProgramContext context);

private:
    /// A way to choose: it outlives the menu and gives a result, or opens a window that will.
    using Way = void (*)(ProgramContext context, const MenuAnswer& answer);
    void AddEntry(const char* objectName, const char16_t* text, const char* artwork, Way way);
    void Take(Way way);
};

} // namespace tavmoor
