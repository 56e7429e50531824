#pragma once

#include "core/document/project_document.h"

#include <QString>

class QComboBox;
class QRadioButton;
class QWidget;

namespace tavmoor {

class TextBox;

// How controls show and give the values of fields, where they do not do so by themselves. They know
// no fields; used by FieldBinder.

/// A long text shows its beginning. A field that has the text already keeps its cursor.
void ShowFromBeginning(TextBox& box, const QString& text);

/// A text that the list does not have stays the field's value and is shown as such.
void ShowChoice(QComboBox& box, const QString& text);
QString ChosenText(const QComboBox& box);

/// In a group of exclusive buttons, only the chosen one is set: none may be chosen.
void ShowOption(QRadioButton& button, bool chosen);

/// The colours of a control's text and of its back, beside each other; a text that could hardly be
/// read on the usual white has a dark back. The control keeps its font.
void ShowTextColor(QWidget& control, ColorValue color);
void ShowBackColor(QWidget& control, ColorValue color);

} // namespace tavmoor
