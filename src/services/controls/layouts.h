#pragma once

#include "services/look/theme.h"

#include <QBoxLayout>
#include <QGridLayout>

namespace tavmoor {

// The layouts of windows and panels. Spacings are logical pixels.

/// A row, column or grid without margins.
/// @param owner the widget that it fills; null for a part of another layout
QHBoxLayout* MakeRow(QWidget* owner = nullptr, int spacing = theme::Gap);
QVBoxLayout* MakeColumn(QWidget* owner = nullptr, int spacing = theme::Gap);
QGridLayout* MakeGrid(QWidget* owner = nullptr, int spacing = theme::Gap);

/// Keeps the contents of a window away from its frame on all sides.
void SetWindowMargins(QLayout& layout);

} // namespace tavmoor
