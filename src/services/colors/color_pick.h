#pragma once

#include "services/windows/menu_result.h"
#include "services/windows/window_registry.h"

#include <QPoint>

class QWidget;

namespace tavmoor {

/// Asks for a colour: shows the colour menu `menu2` at a place of the screen (logical pixels) and
/// returns. A choice that is open already ends as a cancelled one.
/// @param asking the widget that asks; the tools close with its window
/// @param use called once, with a colour or MenuCancelled, unless `asking` has gone before
void PickColor(ProgramContext context, QPoint place, QWidget& asking, MenuAnswer::Use use);

/// Where the colour menu comes up for a control: beside it, a little to the right of its right end.
QPoint ColorMenuPlace(const QWidget& control);

} // namespace tavmoor
