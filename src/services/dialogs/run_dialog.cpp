#include "services/dialogs/run_dialog.h"

#include "services/system/wait_loop.h"

#include <QDialog>

namespace tavmoor {

int RunDialog(QDialog& dialog, const QString& title) {
    if (!title.isEmpty()) {
        dialog.setWindowTitle(title);
    }
    const RunningLoop running;
    return dialog.exec();
}

} // namespace tavmoor
