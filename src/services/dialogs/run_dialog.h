#pragma once

#include <QString>

class QDialog;

namespace tavmoor {

/// Shows a dialog and lets events run until it is closed. Every dialog and message box is shown by
/// this: a window that unloads meanwhile is deleted after the handler that opened the dialog.
/// @param title "" leaves the dialog its own
/// @return a QDialog::DialogCode, or the button of a message box
int RunDialog(QDialog& dialog, const QString& title = {});

} // namespace tavmoor
