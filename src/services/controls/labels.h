#pragma once

#include <QLabel>

namespace tavmoor {

/// A label under an object name; its text is shown as it stands.
QLabel* MakeLabel(const char* objectName, const QString& text, QWidget* parent);
QLabel* MakeLabel(const char* objectName, const char16_t* text, QWidget* parent);

/// The same for a text that is broken at words, where its place is narrower.
QLabel* MakeParagraph(const char* objectName, const QString& text, QWidget* parent);

/// A caption beside a control; its mnemonic leads to the control.
/// @param buddy the control
/// @param parent null for a label that a layout gives its parent
QLabel* MakeCaption(const char16_t* text, QWidget* buddy, QWidget* parent = nullptr);

/// Makes a text small and pale: it explains another control.
void LookLikeNote(QLabel& label);

} // namespace tavmoor
