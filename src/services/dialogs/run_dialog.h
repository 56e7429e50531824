#pragma once

class QDialog;

namespace tavmoor {

/// Shows a dialog and lets events run until it is closed. Every dialog and message box is shown by
/// this: a window that unloads meanwhile is deleted after the handler that opened the dialog.
/// @return a QDialog::DialogCode, or the button of a message box
int RunDialog(QDialog& dialog);

} // namespace tavmoor
