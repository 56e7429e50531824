#pragma once

#include "core/document/field_access.h"
#include "services/fields/field_binding.h"

class QWidget;

namespace tavmoor {

// What a control shows, by the form in which it shows a field; used by FieldBinder alone.

/// Shows the value in the control.
void ShowInControl(QWidget& control, const FieldBinding& row, ConstValueRef value);

/// Takes the value that the user gave in the control; forms whose value is chosen elsewhere do
/// nothing.
void TakeFromControl(const QWidget& control, const FieldBinding& row, ValueRef value);

/// Calls `edited` whenever the user, or code that acts for the user, changes the control.
void WhenEdited(QWidget& control, FieldForm form, QObject* receiver, std::function<void()> edited);

} // namespace tavmoor
