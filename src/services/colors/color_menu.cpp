#include "services/colors/color_menu.h"

#include "services/colors/color_from_picture_window.h"
#include "services/controls/menu_entry.h"
#include "services/dialogs/common_dialog.h"
#include "services/dialogs/dialog_answers.h"
#include "services/windows/program_session.h"

#include <QVBoxLayout>

namespace tavmoor {

namespace {

constexpr WindowLook Menu2Look{.name = WindowName::menu2,
                               .objectName = "menu2",
                               .title = u"Color",
                               .dragArea = "",
                               .chrome = NoChrome,
                               .keptOnTop = true,
                               .closesWhenLeft = true};

void PickFromPalette(ProgramContext /*context*/, const MenuAnswer& answer) {
    CommonDialog cdlg1;
    cdlg1.hOwner = answer.Waiting();
    const auto color = AskForColor(cdlg1);
    answer.Give(color ? MenuResult(*color) : MenuCancelled{});
}

void PickFromPicture(ProgramContext context, const MenuAnswer& answer) {
    CommonDialog cdlg1;
    cdlg1.hOwner = answer.Waiting();
    cdlg1.Filter = "Picture file(jpg, bmp, gif)|*.jpg;*.bmp;*.gif";
    cdlg1.DialogTitle = "Load picture to select color from...";
    cdlg1.InitDir = context.session.settings.lastPictureFolder;
    const auto path = AskForFile(cdlg1);
    if (!path) {
        answer.Give(MenuCancelled{});
    } else if (answer.Waiting() != nullptr) {
        OpenPictureToPickFrom(context, answer, *path);
    }
}

} // namespace

menu2::menu2(ProgramContext context) : ColorTool(context, Menu2Look) {
    Serve(Session().menuAnswer);
    auto* layout = new QVBoxLayout(Body());
    layout->setContentsMargins(1, 5, 1, 5);
    layout->setSpacing(0);
    AddEntry("Label2", u"Select color from palette", "palette", &PickFromPalette);
    AddEntry("Label1", u"Pick color from picture", "eyedropper", &PickFromPicture);
    // The frame of the window goes with its contents, at every scale and in every font.
    QWidget::layout()->setSizeConstraint(QLayout::SetFixedSize);
    Body()->findChild<MenuEntryLabel*>()->setFocus();
}

void menu2::AddEntry(const char* objectName, const char16_t* text, const char* artwork, Way way) {
    auto* entry = new MenuEntryLabel({objectName, text, artwork}, Body());
    Body()->layout()->addWidget(entry);
    connect(entry, &QAbstractButton::clicked, this, [this, way] { Take(way); });
}

void menu2::Take(Way way) {
    const ProgramContext context = Context();
    way(context, CloseUnanswered());
}

} // namespace tavmoor
