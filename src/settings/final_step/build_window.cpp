#include "settings/final_step/build_window.h"

#include "core/files/build_folder.h"
#include "core/files/document_path.h"
#include "core/files/runtime_error.h"
#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/controls/picture_button.h"
#include "services/controls/status_label.h"
#include "services/controls/text_boxes.h"
#include "services/controls/value_label.h"
#include "services/dialogs/message_box.h"
#include "services/dialogs/shell_report.h"
#include "services/look/theme.h"
#include "services/values/qt_text.h"
#include "services/windows/program_session.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QProgressBar>

#include <algorithm>

namespace tavmoor {

namespace {

constexpr WindowLook Form8Look{
    .name = WindowName::Form8,
    .objectName = "Form8",
    .title = u"The final step. You are about to build and save your autorun program..."};

constexpr int StatusLines = 4;
constexpr int NoteLines = 2;

/// Logical pixels: the title is seen whole, beside the chrome.
int WindowWidth() {
    constexpr int Least = 700;
    constexpr int BesideTitle = 150;
    const QFontMetrics metrics(theme::HeadingFont());
    return std::max(Least,
                    metrics.horizontalAdvance(QString::fromUtf16(Form8Look.title)) + BesideTitle);
}

} // namespace

/// The time of one build, in which neither its input changes nor the window closes; it also ends
/// when the build does so by an error.
class Form8::BuildTime {
public:
    explicit BuildTime(Form8& form) : form_(form) { Set(true); }
    BuildTime(const BuildTime&) = delete;
    BuildTime& operator=(const BuildTime&) = delete;
    ~BuildTime() { Set(false); }

private:
    void Set(bool building) {
        form_.building_ = building;
        form_.note_->SetText({});
        form_.name_->setFocus(); // else it goes from the disabled command to the next button
        form_.name_->setReadOnly(building);
        form_.start_->setEnabled(!building);
        form_.build_->setEnabled(!building);
        form_.open_->setEnabled(false);
    }
    Form8& form_;
};

Form8::Form8(ProgramContext context) : SkinnedWindow(context, Form8Look) {
    auto* layout = MakeColumn(Body());
    SetWindowMargins(*layout);
    layout->addLayout(MakeFields());
    start_ = new QCheckBox(QStringLiteral("&Start autorun after 'Build and save'"), Body());
    start_->setObjectName(QStringLiteral("Check1"));
    layout->addWidget(start_);
    layout->addWidget(MakeProgress());
    layout->addLayout(MakeButtons());
    setFixedWidth(WindowWidth());
    layout->setSizeConstraint(QLayout::SetMinimumSize);
}

QLayout* Form8::MakeFields() {
    folder_ = new ValueLabel("Label2", Body());
    name_ = new TextBox("Text1", Body());
    name_->setToolTip(QStringLiteral("Name of the autorun program. Letters, digits, _ and -"));
    auto* fields = MakeGrid();
    fields->addWidget(MakeCaption(u"CD-ROM files folder:", folder_, Body()), 0, 0);
    fields->addWidget(folder_, 0, 1, 1, 2);
    fields->addWidget(MakeCaption(u"&Name of the autorun:", name_, Body()), 1, 0);
    fields->addWidget(name_, 1, 1);
    fields->addWidget(new QLabel(QStringLiteral(".exe"), Body()), 1, 2);
    fields->setColumnStretch(1, 1);
    return fields;
}

QWidget* Form8::MakeProgress() {
    auto* group = new QGroupBox(QStringLiteral("Progress"), Body());
    progress_ = new QProgressBar(group);
    progress_->setObjectName(QStringLiteral("Progress"));
    progress_->setAccessibleName(QStringLiteral("How much of the package is written"));
    status_ = new StatusLabel("Label1", StatusLines, group);
    note_ = new StatusLabel("Note", NoteLines, group);
    QPalette red = note_->palette();
    red.setColor(QPalette::WindowText, theme::Refused);
    note_->setPalette(red);
    auto* layout = new QVBoxLayout(group);
    layout->setSpacing(theme::Gap);
    layout->addWidget(progress_);
    layout->addWidget(status_);
    layout->addWidget(note_);
    return group;
}

QLayout* Form8::MakeButtons() {
    build_ =
        new PictureButton({"Command1", "nav_build", u"&Build and save",
                           u"Builds the autorun in the CD-ROM files folder", ButtonLook::Primary},
                          Body());
    auto* close =
        new PictureButton({"Command2", "", u"&Close", u"Back to the main window"}, Body());
    open_ = new PictureButton({"OpenFolder", "browse", u"&Open folder",
                               u"Opens the CD-ROM files folder with the finished autorun"},
                              Body());
    open_->setEnabled(false);
    connect(build_, &QAbstractButton::clicked, this, &Form8::Build);
    connect(open_, &QAbstractButton::clicked, this, &Form8::OpenDiscFolder);
    connect(close, &QAbstractButton::clicked, this, &QWidget::close);
    SetKeyButtons(build_, close);
    auto* buttons = MakeRow();
    buttons->addWidget(open_);
    buttons->addStretch(1);
    buttons->addWidget(build_);
    buttons->addWidget(close);
    return buttons;
}

void Form8::OnLoad() {
    const std::string& folder = Document().CdFolder();
    theme::MarkRefused(*folder_, folder.empty());
    folder_->SetFullText(
        folder.empty()
            ? QStringLiteral("CD-ROM FILES FOLDER NOT SELECTED! GO BACK TO MAIN AUTORUN SETTINGS.")
            : ToQString(folder));
    build_->setEnabled(!folder.empty());
    WindowBuildEvents(Controls()).ResetProgress();
    start_->setChecked(Session().settings.testAfterBuild);
    name_->setText(ToQString(InitialAutorunName(Document())));
    name_->setFocus();
    name_->selectAll();
}

bool Form8::MayUnload() {
    if (building_) {
        note_->SetText(QStringLiteral("The build is running. The window can be closed after it."));
    }
    return !building_;
}

BuildControls Form8::Controls() const {
    BuildControls controls;
    controls.window = build_->window();
    controls.status = status_;
    controls.progress = progress_;
    return controls;
}

void Form8::Build() {
    if (building_) {
        return;
    }
    EnsureBuildFolder();
    BuildRequest request;
    request.name = FromQString(name_->text());
    request.buildFolder = CompressFolder(Session().settings);
    request.startAfterBuild = start_->isChecked();
    WindowBuildEvents events(Controls());
    events.ResetProgress();
    BuildOutcome outcome;
    {
        const BuildTime time(*this);
        outcome = BuildAutorun(Document(), request, events);
    }
    ShowOutcome(outcome);
}

void Form8::ShowOutcome(const BuildOutcome& outcome) {
    MarkName(outcome);
    open_->setEnabled(!outcome.placed.empty());
    theme::MarkRefused(*folder_, outcome.end == BuildEnd::FolderMissing);
    // A question that was answered with no needs no box on top.
    if (!outcome.text.empty() && !outcome.declined) {
        note_->SetText(outcome.isCritical ? ToQString(outcome.text) : QString());
        ShowMessageBox(this, {ToQString(outcome.text), ToQString(outcome.title), BoxButtons::Ok,
                              outcome.isCritical ? BoxIcon::Critical : BoxIcon::None});
    }
    if (outcome.end == BuildEnd::FolderMissing) {
        GoBackToFolder();
    }
}

void Form8::MarkName(const BuildOutcome& outcome) {
    const bool refused = outcome.end == BuildEnd::NameRefused || outcome.end == BuildEnd::NameEmpty;
    const QColor color = refused ? theme::RefusedName : theme::AcceptedName;
    name_->setStyleSheet(QStringLiteral("background: ") + color.name());
    if (outcome.end == BuildEnd::NameRefused) {
        name_->setText(ToQString(outcome.suggestedName));
    }
}

void Form8::OpenDiscFolder() {
    ReportFailure(this, SystemShell().OpenDocument(Document().CdFolder()));
}

void Form8::GoBackToFolder() {
    Unload();
    if (MainWindowCommands* main = Windows().Main()) {
        main->HidePanels();
        main->ShowMainSettings();
        main->FocusCdFolder();
    }
}

} // namespace tavmoor
