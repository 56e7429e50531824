#include "services/dialogs/picture_format_check.h"

#include "services/dialogs/message_box.h"
#include "services/pictures/picture_loader.h"

#include <utility>

namespace tavmoor {

PictureFormatChecker::PictureFormatChecker(QWidget* owner, std::string programFolder,
                                           Opener openWorkaround)
    : owner_(owner), programFolder_(std::move(programFolder)),
      openWorkaround_(std::move(openWorkaround)) {}

int PictureFormatChecker::PictureFormatCheck(std::string_view documentPath) const {
    if (LoadPicture(documentPath).fault == PictureFault::None) {
        return -1;
    }
    const MessageBoxRequest request{
        QStringLiteral("Picture format compatibility problem. Click YES to see workaround for the "
                       "problem..."),
        QStringLiteral("Warning"), BoxButtons::YesNo, BoxIcon::Warning};
    if (ShowMessageBox(owner_, request) == BoxAnswer::Yes) {
        openWorkaround_(programFolder_ + "\\jpeg_compability.htm");
    }
    return 0;
}

} // namespace tavmoor
