#include "services/shared/autorun_check_window.h"

#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/controls/picture_button.h"
#include "services/dialogs/message_box.h"
#include "services/look/theme.h"
#include "services/system/autorun_check.h"
#include "services/system/registry_store.h"
#include "services/windows/program_session.h"

#include <QCheckBox>

namespace tavmoor {

namespace {

constexpr WindowLook Form13Look{.name = WindowName::Form13,
                                .objectName = "Form13",
                                .title = u"Autorun check",
                                .dragArea = "Image1",
                                .keptOnTop = true};

constexpr int TextWidth = 400; ///< logical pixels

struct TextLine {
    const char* objectName;
    const char16_t* text;
};

constexpr TextLine Explanations[] = {
    {"Label3", u"In order for CD-ROM to start automatically after insertion, your system have to "
               u"be set to enable this function. Tavmoor can check if CD-ROM Autorun on your "
               u"system is enabled"},
    {"Label4", u"If autorun is disabled at the moment, after you choose to check your system, "
               u"you'll have to restart your computer for the changes to take effect"},
};

QLabel* MakeText(const char* objectName, const QString& text, QWidget* parent) {
    auto* label = MakeParagraph(objectName, text, parent);
    label->setMinimumWidth(TextWidth);
    return label;
}

} // namespace

Form13::Form13(ProgramContext context) : SkinnedWindow(context, Form13Look) {
    auto* layout = MakeColumn(Body(), theme::Margin);
    SetWindowMargins(*layout);
    auto* heading =
        MakeText("Label1", QStringLiteral("Check autorun(and enable if necessary)"), Body());
    heading->setFont(theme::HeadingFont());
    layout->addWidget(heading);
    for (const TextLine& line : Explanations) {
        layout->addWidget(MakeText(line.objectName, QString::fromUtf16(line.text), Body()));
    }
    if (!AutorunStatusMatters) {
        auto* note = MakeText(
            "Note",
            QStringLiteral("This computer does not run Windows, where alone discs start by "
                           "themselves. The settings are only kept with this program."),
            Body());
        note->setProperty("look", QStringLiteral("note"));
        layout->addWidget(note);
    }
    check1_ = new QCheckBox(QStringLiteral("Always check autorun"), Body());
    check1_->setObjectName(QStringLiteral("Check1"));
    check1_->setToolTip(QStringLiteral("Opens this window every time the program starts"));
    layout->addWidget(check1_);
    layout->addWidget(MakeButtons());
    // The frame of the window goes with its contents, at every scale and in every font.
    QWidget::layout()->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* Form13::MakeButtons() {
    auto* row = new QWidget(Body());
    auto* layout = MakeRow(row);
    auto* cancel = new PictureButton(
        {"Command1", "cancel", u"&Close", u"Closes the window without a check"}, row);
    auto* check = new PictureButton({"Command2", "ok", u"Check &autorun",
                                     u"Checks the system and enables autorun", ButtonLook::Primary},
                                    row);
    layout->addStretch(1);
    layout->addWidget(cancel);
    layout->addWidget(check);
    connect(cancel, &QAbstractButton::clicked, this, [this] { Unload(); });
    connect(check, &QAbstractButton::clicked, this, &Form13::Check);
    SetKeyButtons(check, cancel);
    return row;
}

void Form13::TickWhenSet() {
    if (Session().settings.autoplayCheck) {
        check1_->setChecked(true);
    }
}

void Form13::Check() {
    const bool changed = CheckAutorunStatus(SystemRegistry());
    if (!changed) {
        check1_->setChecked(false);
    }
    ShowMessageBox(this, {AutorunStatusText(changed), {}, BoxButtons::Ok, BoxIcon::Information});
    Unload();
}

void Form13::OnUnload() {
    Session().settings.autoplayCheck = check1_->isChecked();
}

} // namespace tavmoor
