#include "settings/project/project_listener.h"

#include "services/dialogs/message_box.h"
#include "services/system/session_fonts.h"
#include "services/system/wait_loop.h"
#include "services/values/qt_text.h"
#include "settings/template/template_capabilities.h"

namespace tavmoor {

void ProjectListener::ShowMessage(std::string_view text, std::string_view title) {
    ShowMessageBox(&owner_, {ToQString(text), ToQString(title)});
}

void ProjectListener::FontRead(std::string_view path) {
    const std::string font(path);
    AddSessionFontsIgnoringErrors({&font, 1});
}

void ProjectListener::LetEventsRun() {
    LetEventsRunWithoutInput();
}

void ProjectListener::ApplyTemplateCapabilities() {
    tavmoor::ApplyTemplateCapabilities(context_);
}

void ProjectListener::ProjectTitleChanged(std::string_view /*path*/) {
    context_.windows.Main()->ShowDocument();
}

} // namespace tavmoor
