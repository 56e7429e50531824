#include "settings/steps/main_settings_panel.h"

#include "core/text/text_case.h"
#include "services/controls/color_box.h"
#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/controls/path_box.h"
#include "services/controls/picture_button.h"
#include "services/controls/value_label.h"
#include "services/dialogs/common_dialog.h"
#include "services/dialogs/dialog_answers.h"
#include "services/dialogs/file_name_check.h"
#include "services/fields/color_pick_button.h"
#include "services/fields/field_pickers.h"
#include "services/fields/picture_field.h"
#include "services/look/theme.h"
#include "services/pictures/picture_loader.h"
#include "services/values/qt_text.h"
#include "services/windows/program_session.h"
#include "services/windows/skinned_window.h"
#include "settings/project/step_checks.h"
#include "templates/template_catalogue.h"

#include <QGroupBox>
#include <QPixmap>

#include <utility>

namespace tavmoor {

namespace {

template <auto Member>
constexpr auto Base = At<&ProjectDocument::OsnovnaPodesavanja, Member>;

constexpr PictureFieldDescription BackgroundPicture{.label = "Label11",
                                                    .meaning = u"Background picture",
                                                    .browse = "Command1",
                                                    .remove = "Command51",
                                                    .browseTooltip =
                                                        u"Choose autorun background picture...",
                                                    .removeTooltip = u"Remove background picture",
                                                    .title = "Choose autorun background picture...",
                                                    .filter = AutorunPictureFilter};

constexpr std::string_view IconFilter = "Icons (*.ico)| *.ico";

constexpr int IconSide = 32;
constexpr int ColorBoxWidth = 120;
constexpr int TemplateNameShare = 2;
constexpr int TemplatePathShare = 5;

/// @param layout of the group, made here
template <typename Layout>
QGroupBox* MakeGroup(const char16_t* title, QWidget* parent, Layout*& layout) {
    auto* group = new QGroupBox(QString::fromUtf16(title), parent);
    layout = new Layout(group);
    layout->setContentsMargins(theme::Margin, theme::Gap / 2, theme::Margin, theme::Gap);
    layout->setSpacing(theme::Gap);
    return group;
}

ValueLabel* MakeValue(const char* objectName, const char16_t* meaning, QWidget* parent) {
    auto* label = new ValueLabel(objectName, parent);
    label->setAccessibleName(QString::fromUtf16(meaning));
    return label;
}

/// The name of the project's template as the user knows it; the project knows the visual editor's
/// by the name that its files have.
QString ShownTemplateName(const ProjectDocument& document) {
    const std::string& name = document.Working.TemplateName;
    return ToQString(EqualWithoutCase(name, EditorTemplateName) ? EditorDisplayName
                                                                : std::string_view(name));
}

} // namespace

Frame2::Frame2(ProgramContext context, QWidget* parent)
    : Panel(context, "Frame2", u"Main settings", parent) {
    auto* layout = MakeColumn(Body());
    layout->addWidget(MakeFolderGroup());
    layout->addWidget(MakeTemplateGroup());
    layout->addWidget(MakeBackgroundGroup());
    layout->addWidget(MakeIconGroup());
    layout->addWidget(MakeFurtherSettings());
    layout->addStretch();
}

QWidget* Frame2::MakeFolderGroup() {
    QGridLayout* grid = nullptr;
    auto* group = MakeGroup(u"Point to CD-ROM files folder on local Disk", Body(), grid);
    folder_ = new PathBox("Text23", PathKind::Folder, group);
    folder_->setAccessibleName(group->title());
    Binder().Bind(*folder_, Base<&BaseSettings::GlavniDirektorijum>);
    auto* browse = new PictureButton(
        {"Command32", "browse", u"", u"CD ROM files folder", ButtonLook::Icon}, group);
    auto* note = MakeCaption(u"(project folder where you keep files and folders that you want to "
                             u"have on your CD/DVD-ROM)",
                             folder_, group);
    LookLikeNote(*note);
    grid->addWidget(folder_, 0, 0);
    grid->addWidget(browse, 0, 1);
    grid->addWidget(note, 1, 0, 1, 2);
    connect(browse, &QAbstractButton::clicked, this, &Frame2::BrowseCdFolder);
    return group;
}

QWidget* Frame2::MakeTemplateGroup() {
    QHBoxLayout* row = nullptr;
    auto* group = MakeGroup(u"Template", Body(), row);
    templateName_ = MakeValue("Label89", u"Template", group);
    auto* path = MakeValue("Label27", u"Template folder", group);
    Binder().Bind(*path, Base<&BaseSettings::Sablon>);
    auto* select = new PictureButton(
        {"Command11", "template", u"Se&lect...",
         u"Select a template or the visual editor as the project's working environment"},
        group);
    row->addWidget(templateName_, TemplateNameShare);
    row->addWidget(path, TemplatePathShare);
    row->addWidget(select);
    connect(select, &QAbstractButton::clicked, this,
            [this] { Windows().Main()->OpenTemplateWindow(); });
    return group;
}

QWidget* Frame2::MakeBackgroundGroup() {
    QGridLayout* grid = nullptr;
    auto* group =
        MakeGroup(u"Choose background picture and color of main autorun window", Body(), grid);
    group->setObjectName(QStringLiteral("Label2"));
    auto* picture = new PictureField(BackgroundPicture, Context(), Binder(),
                                     Base<&BaseSettings::PozadinskaSlika>, group);
    auto* color = new ColorBox("Label19", u"", u"Back color", group);
    color->setFixedWidth(ColorBoxWidth);
    Binder().Bind(*color, Base<&BaseSettings::BojaProzora>);
    auto* pickColor = new ColorPickButton(
        {"Command2", "palette", u"", u"Click here to choose background color", ButtonLook::Icon},
        Context(), *color, Document().OsnovnaPodesavanja.BojaProzora, group);
    grid->addWidget(MakeCaption(u"Background picture:", picture, group), 0, 0);
    grid->addWidget(picture, 0, 1, 1, 3);
    grid->addWidget(MakeCaption(u"Back color", color, group), 1, 0);
    grid->addWidget(color, 1, 1);
    grid->addWidget(pickColor, 1, 2);
    grid->setColumnStretch(3, 1);
    connect(picture, &PictureField::Changed, this, &Frame2::ShowDocument);
    connect(pickColor, &ColorPickButton::Changed, this, &Frame2::ShowDocument);
    return group;
}

QWidget* Frame2::MakeIconGroup() {
    QHBoxLayout* row = nullptr;
    auto* group =
        MakeGroup(u"Choose autorun icon (or leave blank for default cd icon)", Body(), row);
    icon_ = MakeLabel("Image1", u"", group);
    icon_->setAccessibleName(QStringLiteral("Selected autorun icon"));
    icon_->setFixedSize(IconSide, IconSide);
    auto* path = MakeValue("Label35", u"Autorun icon", group);
    Binder().Bind(*path, At<&ProjectDocument::OsnovniPodaci, &MainTexts::Ikona>);
    auto* browse = new PictureButton(
        {"Command17", "browse", u"", u"Click here to browse for autorun icon", ButtonLook::Icon},
        group);
    auto* remove = new PictureButton(
        {"Command52", "remove", u"", u"Remove selected autorun icon", ButtonLook::Icon}, group);
    row->addWidget(icon_);
    row->addWidget(path);
    row->addWidget(browse);
    row->addWidget(remove);
    connect(browse, &QAbstractButton::clicked, this, &Frame2::BrowseIcon);
    connect(remove, &QAbstractButton::clicked, this, [this] { StoreIcon({}); });
    connect(new PathDrop(*path, IconFilter), &PathDrop::Dropped, this,
            [this](const QString& dropped) {
                if (const std::string icon = FromQString(dropped); !CheckFileName(this, icon)) {
                    StoreIcon(icon);
                }
            });
    return group;
}

QWidget* Frame2::MakeFurtherSettings() {
    auto* box = new QWidget(Body());
    auto* row = MakeRow(box);
    auto* backWindow =
        new PictureButton({"Command44", "back_window", u"",
                           u"Click here to set back window properties", ButtonLook::Icon},
                          box);
    auto* backWindowText = new PictureButton(
        {"Label87", "", u"Click here to set back window properties", u"", ButtonLook::Link}, box);
    // The button beside it is the tab stop.
    backWindowText->setFocusPolicy(Qt::NoFocus);
    auto* expiry =
        new PictureButton({"Command60", "calendar", u"Set CD-ROM expiration date and shortcuts",
                           u"Set CD-ROM expiration date and shortcuts"},
                          box);
    row->addWidget(backWindow);
    row->addWidget(backWindowText);
    row->addStretch();
    row->addWidget(expiry);
    for (auto* button : {backWindow, backWindowText}) {
        EnableWhenStanding(*button, Windows(), WindowName::Form6);
        connect(button, &QAbstractButton::clicked, this,
                [this] { Windows().OpenFromMain(WindowName::Form6); });
    }
    EnableWhenStanding(*expiry, Windows(), WindowName::Form15);
    connect(expiry, &QAbstractButton::clicked, this, &Frame2::OpenExpiryAndShortcuts);
    return box;
}

void Frame2::ShowDocument() {
    Panel::ShowDocument();
    templateName_->SetFullText(ShownTemplateName(Document()));
    ShowIconIgnoringLoadErrors();
}

void Frame2::BrowseCdFolder() {
    CommonDialog dialog;
    dialog.hOwner = this;
    dialog.DialogTitle = "CD ROM files folder";
    dialog.InitDir = Document().CdFolder();
    if (const auto folder = AskForFolder(dialog)) {
        Document().OsnovnaPodesavanja.GlavniDirektorijum = *folder;
        ShowDocument();
    }
}

void Frame2::FocusCdFolder() {
    folder_->setFocus();
}

void Frame2::BrowseIcon() {
    const std::string& current = Document().OsnovniPodaci.Ikona;
    const auto path =
        PickCheckedFile(*this, {"Choose icon...", IconFilter,
                                current.empty() ? InProgramFolder(Session(), "Icons") : current});
    if (path) {
        StoreIcon(*path);
    }
}

void Frame2::StoreIcon(const std::string& path) {
    Document().OsnovniPodaci.Ikona = path;
    ShowDocument();
}

void Frame2::ShowIconIgnoringLoadErrors() {
    const std::string& path = Document().OsnovniPodaci.Ikona;
    // The panel is shown anew after every change of the project.
    FileStamp icon = FileStampOf(path);
    if (icon == shownIcon_) {
        return;
    }
    shownIcon_ = std::move(icon);
    const QImage image = path.empty() ? QImage() : LoadPicture(path).image;
    icon_->setPixmap(QPixmap::fromImage(
        image.width() > IconSide || image.height() > IconSide
            ? image.scaled(IconSide, IconSide, Qt::KeepAspectRatio, Qt::SmoothTransformation)
            : image));
}

void Frame2::OpenExpiryAndShortcuts() {
    const StepChecks checks(Context(), *this);
    if (!checks.FolderIsChosen() || !checks.TemplateIsChosen()) {
        return;
    }
    const QPoint place = Windows().Main()->Geometry().topLeft();
    Windows().Load(WindowName::Form15).move(place);
    Windows().OpenFromMain(WindowName::Form15);
}

} // namespace tavmoor
