#include "services/dialogs/file_name_check.h"

#include "core/text/character_checks.h"
#include "services/dialogs/message_box.h"
#include "services/values/qt_text.h"

namespace tavmoor {

bool CheckFileName(QWidget* owner, std::string_view documentPath) {
    const auto objection = FileNameObjection(documentPath);
    if (objection) {
        ShowMessageBox(owner, {ToQString(*objection), {}, BoxButtons::Ok, BoxIcon::None});
    }
    return objection.has_value();
}

} // namespace tavmoor
