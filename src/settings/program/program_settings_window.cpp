#include "settings/program/program_settings_window.h"

#include "core/files/build_folder.h"
#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/controls/path_box.h"
#include "services/controls/picture_button.h"
#include "services/dialogs/common_dialog.h"
#include "services/dialogs/dialog_answers.h"
#include "services/look/theme.h"
#include "services/shared/autorun_check_window.h"
#include "services/values/qt_text.h"
#include "services/windows/program_session.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QRadioButton>

namespace tavmoor {

namespace {

constexpr WindowLook Form3Look{.name = WindowName::Form3,
                               .objectName = "Form3",
                               .title = u"Program settings",
                               .dragArea = "Image1"};

constexpr int GroupWidth = 570; ///< at least; logical pixels

struct FlagField {
    const char* objectName;
    const char16_t* caption;
    bool ProgramSettings::*flag;
};

constexpr std::array<FlagField, 4> FlagFields{{
    {"Check1", u"Preview pictures", &ProgramSettings::previewPictures},
    {"Check2", u"Display Tavmoor splash screen on startup", &ProgramSettings::programSplash},
    {"Check3", u"Always test autorun after 'Build and save' command",
     &ProgramSettings::testAfterBuild},
    {"Check4", u"Check autorun status every time Tavmoor is launched",
     &ProgramSettings::autoplayCheck},
}};
constexpr std::size_t AutoplayFlag = 3;

/// The caption of a button that shows it as it is, an ampersand too.
QString Literal(QString text) {
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

Form3::Form3(ProgramContext context) : SkinnedWindow(context, Form3Look) {
    static_assert(FlagFields.size() == FlagCount);
    auto* layout = MakeColumn(Body());
    SetWindowMargins(*layout);
    constexpr std::size_t FlagsAboveFolder = 2;
    for (std::size_t i = 0; i < FlagCount; ++i) {
        if (i == FlagsAboveFolder) {
            layout->addWidget(MakeFolderGroup());
        }
        const FlagField& field = FlagFields.at(i);
        flags_.at(i) = new QCheckBox(QString::fromUtf16(field.caption), Body());
        flags_.at(i)->setObjectName(QString::fromLatin1(field.objectName));
        layout->addWidget(flags_.at(i));
    }
    layout->addWidget(MakeAutorunRow());
    layout->addWidget(MakeButtons());
    // The frame of the window goes with its contents, at every scale and in every font.
    QWidget::layout()->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* Form3::MakeFolderGroup() {
    auto* group = new QGroupBox(QStringLiteral(" Define compress folder. It is the folder where "
                                               "all temporary files will be placed "),
                                Body());
    group->setObjectName(QStringLiteral("Frame1"));
    // A group does not make room for its title by itself.
    const int width = qMax(GroupWidth, group->fontMetrics().horizontalAdvance(group->title()) +
                                           3 * theme::Margin);
    group->setMinimumWidth(width);
    option1_ = new QRadioButton(group);
    option1_->setObjectName(QStringLiteral("Option1"));
    const QString caption =
        QStringLiteral("Use default (%1)").arg(ToQString(InProgramFolder(Session(), R"(build\)")));
    const int room = width - 5 * theme::Margin; // beside the button and the frame
    option1_->setText(Literal(option1_->fontMetrics().elidedText(caption, Qt::ElideMiddle, room)));
    option1_->setToolTip(caption);
    option2_ = new QRadioButton(QStringLiteral("Let me choose"), group);
    option2_->setObjectName(QStringLiteral("Option2"));
    text1_ = new PathBox("Text1", PathKind::Folder, group);
    text1_->setAccessibleName(QStringLiteral("Compress folder"));
    text1_->setToolTip(QStringLiteral("The folder of your choice; a folder can be dropped here"));
    auto* browse = new PictureButton(
        {"Command3", "browse", u"", u"Choose temporary compress folder", ButtonLook::Icon}, group);
    auto* layout = new QGridLayout(group);
    layout->setSpacing(theme::Gap);
    layout->addWidget(option1_, 0, 0, 1, 3);
    layout->addWidget(option2_, 1, 0);
    layout->addWidget(text1_, 1, 1);
    layout->addWidget(browse, 1, 2);
    connect(text1_, &QLineEdit::textEdited, this, [this] { option2_->setChecked(true); });
    connect(browse, &QAbstractButton::clicked, this, &Form3::ChooseFolder);
    return group;
}

QWidget* Form3::MakeAutorunRow() {
    auto* row = new QWidget(Body());
    auto* layout = MakeRow(row, theme::Margin);
    auto* text = MakeParagraph(
        "Label3",
        QStringLiteral("When you insert a CD-ROM in your CD-ROM drive, the AutoRun feature may not "
                       "work or may be unavailable. Click on the button to enable autorun on your "
                       "computer."),
        row);
    auto* check = new PictureButton(
        {"Command4", "disc", u"Check &autorun...", u"Opens the autorun check"}, row);
    layout->addWidget(text, 1);
    layout->addWidget(check);
    connect(check, &QAbstractButton::clicked, this, &Form3::OpenAutorunCheck);
    return row;
}

QWidget* Form3::MakeButtons() {
    auto* row = new QWidget(Body());
    auto* layout = MakeRow(row);
    layout->setContentsMargins(0, theme::Gap, 0, 0);
    auto* cancel = new PictureButton(
        {"Command1", "cancel", u"&Cancel", u"Leaves the settings as they were (Esc)"}, row);
    auto* store = new PictureButton(
        {"Command2", "ok", u"&OK", u"Stores the settings", ButtonLook::Primary}, row);
    layout->addStretch(1);
    layout->addWidget(cancel);
    layout->addWidget(store);
    connect(cancel, &QAbstractButton::clicked, this, [this] { Unload(); });
    connect(store, &QAbstractButton::clicked, this, &Form3::Store);
    SetKeyButtons(store, cancel);
    return row;
}

void Form3::OnLoad() {
    const ProgramSettings& settings = Session().settings;
    for (std::size_t i = 0; i < FlagCount; ++i) {
        flags_.at(i)->setChecked(settings.*FlagFields.at(i).flag);
    }
    shownAutoplayCheck_ = settings.autoplayCheck;
    ShowFolderSetting();
}

void Form3::ShowFolderSetting() {
    const std::string folder = CompressFolder(Session().settings);
    const bool chosen = folder != BuildFolder();
    option1_->setChecked(!chosen);
    option2_->setChecked(chosen);
    text1_->setText(chosen ? ToQString(folder) : QString());
}

void Form3::ShowAutoplayCheck() {
    // What the user ticked here and has not stored yet stays, unless the setting itself changed.
    const bool now = Session().settings.autoplayCheck;
    if (now != shownAutoplayCheck_) {
        shownAutoplayCheck_ = now;
        flags_.at(AutoplayFlag)->setChecked(now);
    }
}

void Form3::ChooseFolder() {
    CommonDialog dialog;
    dialog.hOwner = this;
    dialog.DialogTitle = "Choose temporary compress folder...";
    dialog.InitDir = FromQString(text1_->text());
    if (const auto folder = AskForFolder(dialog)) {
        text1_->setText(ToQString(*folder));
        option2_->setChecked(true);
    }
}

void Form3::OpenAutorunCheck() {
    // The autorun check shows the setting as on also when it is only ticked here so far.
    bool& autoplayCheck = Session().settings.autoplayCheck;
    autoplayCheck = autoplayCheck || flags_.at(AutoplayFlag)->isChecked();
    shownAutoplayCheck_ = autoplayCheck;
    auto& check = static_cast<Form13&>(Windows().Open(WindowName::Form13));
    check.TickWhenSet();
    // The system may leave this window inactive when that one goes.
    connect(&check, &SkinnedWindow::Unloaded, this, &Form3::ShowAutoplayCheck,
            Qt::UniqueConnection);
}

void Form3::Store() {
    // A key that presses the button leaves the field as it was typed.
    if (option2_->isChecked() && !text1_->TakeOverTyped()) {
        text1_->setFocus();
        return;
    }
    ProgramSettings& settings = Session().settings;
    for (std::size_t i = 0; i < FlagCount; ++i) {
        settings.*FlagFields.at(i).flag = flags_.at(i)->isChecked();
    }
    const std::string folder = FromQString(text1_->text());
    settings.buildFolder =
        option2_->isChecked() && !folder.empty() ? folder : std::string(DefaultCompressFolder);
    Unload();
}

} // namespace tavmoor
