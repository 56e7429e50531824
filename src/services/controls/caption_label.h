#pragma once

class QLabel;
class QWidget;

namespace tavmoor {

/// A caption beside a control; its mnemonic leads to the control.
/// @param buddy the control
/// @param parent null for a label that a layout gives its parent
QLabel* MakeCaption(const char16_t* text, QWidget* buddy, QWidget* parent = nullptr);

} // namespace tavmoor
