#include "services/colors/color_menu.h"

#include "core/files/runtime_error.h"
#include "services/colors/color_from_picture_window.h"
#include "services/controls/menu_entry.h"
#include "services/dialogs/common_dialog.h"
#include "services/values/color_value.h"
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

void PickFromPalette(ProgramContext context, QWidget* asking) {
    CommonDialog cdlg1;
    cdlg1.hOwner = asking;
    cdlg1.CancelError = true;
    try {
        cdlg1.ShowColor();
        context.session.MenuResult = ColorText(cdlg1.RGBResult);
    } catch (const RuntimeError& error) {
        if (error.Number() != ErrorNumber::InvalidCall) {
            throw;
        }
        context.session.MenuResult = CancelledResult;
    }
}

void PickFromPicture(ProgramContext context, QWidget* asking) {
    CommonDialog cdlg1;
    cdlg1.hOwner = asking;
    cdlg1.Filter = "Picture file(jpg, bmp, gif)|*.jpg;*.bmp;*.gif";
    cdlg1.DialogTitle = "Load picture to select color from...";
    cdlg1.InitDir = context.session.settings.lastPictureFolder;
    cdlg1.ShowOpen();
    if (cdlg1.FileName.empty() || !OpenPictureToPickFrom(context, asking, cdlg1.FileName)) {
        context.session.MenuResult = CancelledResult;
    }
}

} // namespace

menu2::menu2(ProgramContext context) : SkinnedWindow(context, Menu2Look) {
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
    const QPointer<QWidget> asking = asking_;
    wayTaken_ = true;
    Unload();
    context.session.MenuResult.clear();
    way(context, asking);
}

void menu2::OnUnload() {
    if (!wayTaken_) {
        Session().MenuResult = CancelledResult;
    }
}

} // namespace tavmoor
