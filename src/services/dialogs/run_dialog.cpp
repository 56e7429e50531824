#include "services/dialogs/run_dialog.h"

#include "services/system/wait_loop.h"

#include <QDialog>

namespace tavmoor {

int RunDialog(QDialog& dialog) {
    const RunningLoop running;
    return dialog.exec();
}

} // namespace tavmoor
