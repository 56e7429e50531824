#pragma once

#include "core/document/project_document.h"
#include "services/windows/window_registry.h"

#include <QPoint>

#include <optional>

class QWidget;

namespace tavmoor {

/// Asks for a colour: shows the colour menu `menu2` at a place of the screen (logical pixels) and
/// lets events run until it, or the window that it leads to, has a result.
/// @param waiting the window that asks; its end ends the waiting
/// @return nothing when the user cancelled, or the waiting was ended
std::optional<ColorValue> PickColor(ProgramContext context, QPoint place, const QWidget& waiting);

/// Where the colour menu comes up for a control: beside it, a little to the right of its right end.
QPoint ColorMenuPlace(const QWidget& control);

} // namespace tavmoor
