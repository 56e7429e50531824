#pragma once

#include "menu/look.h"

#include <functional>

namespace tavmoor {

/// The colour, 0x00BBGGRR, of a system colour's number, such as 5 for the window colour.
using SystemColors = std::function<std::uint32_t(int number)>;

/// The opaque colour that a project's colour stands for.
Argb SolidColor(ColorValue color, const SystemColors& system);

/// `top` laid over `bottom`.
Argb Blend(Argb top, Argb bottom);

/// Contrast of two opaque colours, 1 (none) to 21 (black on white).
double Contrast(Argb a, Argb b);

/// `wanted` when it can be read on `back`, otherwise white or a near black. Both are opaque.
Argb ReadableOn(Argb back, Argb wanted);

/// The colours to draw with. Colours that the author chose stand as they are; the look's own fill
/// the rest, and give way to black or white where the chosen ones would make them unreadable.
/// @param picture a picture fills the window: faces that let it through are made solid enough to
///        be read on any
Palette MakePalette(const MenuModel& model, const Look& look, const SystemColors& system,
                    bool picture);

} // namespace tavmoor
