#include "settings/main/main_window.h"

#include "core/files/runtime_error.h"
#include "core/session/program_settings.h"
#include "core/text/maker.h"
#include "services/controls/labels.h"
#include "services/controls/picture_button.h"
#include "services/dialogs/message_box.h"
#include "services/dialogs/shell_report.h"
#include "services/look/theme.h"
#include "services/shared/picture_preview_window.h"
#include "services/system/session_fonts.h"
#include "services/values/qt_text.h"
#include "services/values/twips.h"
#include "services/windows/program_session.h"
#include "settings/main/hint_line.h"
#include "settings/main/main_menu.h"
#include "settings/main/main_window_panels.h"
#include "settings/steps/main_settings_panel.h"

#include <QApplication>
#include <QShortcut>

namespace tavmoor {

namespace {

constexpr WindowLook Form1Look{
    .name = WindowName::Form1, .objectName = "Form1", .title = u"Tavmoor", .escapeCloses = false};

// Logical pixels within the window.
constexpr QSize WindowSize{930, 600};
constexpr QPoint ColumnPlace{14, 64};
constexpr QRect PanelPlace{180, 74, 736, 412};
constexpr QRect TitlePlace{330, 40, 586, 24};
constexpr QRect HintPlace{180, 548, 736, 40};
constexpr QSize HelpSize{149, 37};

constexpr int HelpLeft = 8880; // twips
constexpr int HelpTop = 7440;  // twips

constexpr std::chrono::milliseconds MenuInterval{400};

/// Of a window that has one.
QWidget& LastTabStop(QWidget& window) {
    QWidget* last = window.previousInFocusChain();
    while ((last->focusPolicy() & Qt::TabFocus) == 0) {
        last = last->previousInFocusChain();
    }
    return *last;
}

} // namespace

Form1::Form1(ProgramContext context)
    : SkinnedWindow(context, Form1Look), checks_(context, *this), commands_(context, *this),
      keeper_(context.session, this) {
    setFixedSize(WindowSize);
    MakeTopRow();
    column_ = new NavigationColumn(this);
    column_->move(ColumnPlace);
    MakeBottomRow();
    MakeKeys();
    player_ = new MP3Play(this);
    player_->setObjectName(QStringLiteral("MP3Play1"));
    player_->hide();
    connect(column_, &NavigationColumn::Chosen, this, &Form1::TakeStep);
    connect(column_, &NavigationColumn::Approached, this, [this](NavigationStep step) {
        if (step == NavigationStep::Build) {
            ShowBuildTooltip();
        }
    });
    timer_.setObjectName(QStringLiteral("Timer1"));
    connect(&timer_, &QTimer::timeout, this, &Form1::ServeStoredAction);
    context.windows.SetMain(this);
}

Form1::~Form1() {
    if (Windows().Main() == this) {
        Windows().SetMain(nullptr);
    }
}

void Form1::MakeTopRow() {
    fileMenu_ = new PictureButton({"Label24", "", u"&File", u"", ButtonLook::Link}, this);
    programMenu_ = new PictureButton({"Label44", "", u"&Program", u"", ButtonLook::Link}, this);
    fileMenu_->setAccessibleDescription(QStringLiteral("Opens the menu of the project's file"));
    programMenu_->setAccessibleDescription(QStringLiteral("Opens the menu of the program"));
    const int top = theme::TitleHeight + 5;
    fileMenu_->move(ColumnPlace.x(), top);
    fileMenu_->adjustSize();
    programMenu_->move(fileMenu_->geometry().right() + theme::Gap, top);
    programMenu_->adjustSize();
    connect(fileMenu_, &QAbstractButton::clicked, this, [this] { OpenMenu(MenuSide::File); });
    connect(programMenu_, &QAbstractButton::clicked, this, [this] { OpenMenu(MenuSide::Program); });
    title_ = MakeLabel("ProjectTitle", u"", this);
    title_->setProperty("look", QStringLiteral("note"));
    title_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    title_->setGeometry(TitlePlace);
}

void Form1::MakeBottomRow() {
    help_ = new PictureButton({"Command9", "help", u"&Help", u"Help and step by step instructions"},
                              this);
    help_->setGeometry({{PixelsOf(HelpLeft), PixelsOf(HelpTop)}, HelpSize});
    connect(help_, &QAbstractButton::clicked, this, [this] { Serve(MenuAction::Help); });
    hint_ = new HintLine(this);
    hint_->setGeometry(HintPlace);
    hint_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void Form1::OnLoad() {
    DisableUnbuiltSteps();
    ShowPanel(PanelName::Frame2);
    ShowDocument();
    hint_->Restore();
    column_->Button(NavigationStep::MainSettings).setFocus();
    timer_.start(MenuInterval);
    keeper_.Start();
    // Once the window is seen.
    QTimer::singleShot(0, this, &Form1::AskAtStart);
}

void Form1::AskAtStart() {
    commands_.OfferRecovered();
    recoveryOffered_ = true;
    if (isActiveWindow()) {
        OpenDueAutorunCheck();
    }
}

void Form1::DisableUnbuiltSteps() {
    EnableWhenStanding(column_->Button(NavigationStep::Effects), Windows(), WindowName::Form12);
    EnableWhenStanding(column_->Button(NavigationStep::Messages), Windows(), WindowName::Form14);
    EnableWhenStanding(column_->Button(NavigationStep::Fonts), Windows(), WindowName::Form9);
}

void Form1::OpenDueAutorunCheck() {
    // One question after the other: that about recovery comes first.
    if (recoveryOffered_ && Session().autorunCheckDue && Windows().Stands(WindowName::Form13)) {
        Session().autorunCheckDue = false;
        Windows().Open(WindowName::Form13);
    }
}

void Form1::OnUnload() {
    timer_.stop();
    keeper_.Stop();
    commands_.KeepUnsaved();
    SaveSettings();
    RemoveSessionFontsIgnoringErrors(Document().Fontovi);
    Windows().UnloadAll();
    QCoreApplication::quit();
}

void Form1::SaveSettings() {
    try {
        WriteProgramSettings(Session().settings, Session().settingsPath);
    } catch (const RuntimeError& error) {
        ShowMessageBox(this, {ToQString(error.what()), {}, BoxButtons::Ok, BoxIcon::Warning});
    }
}

void Form1::TakeStep(NavigationStep step) {
    switch (step) {
    case NavigationStep::MainSettings:
        ShowMainSettings();
        break;
    case NavigationStep::AutorunInfo:
        if (checks_.TemplateIsChosen()) {
            ShowPanel(PanelName::Frame3);
        }
        break;
    case NavigationStep::Commands:
        if (checks_.TemplateIsChosen() && checks_.FolderIsSet() &&
            checks_.CommandsAreEditedHere()) {
            ShowPanel(PanelName::Frame4);
        }
        break;
    case NavigationStep::Effects:
        if (checks_.TemplateIsChosen()) {
            OpenFromMain(WindowName::Form12);
        }
        break;
    case NavigationStep::Sound:
        ShowPanel(PanelName::Frame5);
        break;
    case NavigationStep::Splash:
        ShowPanel(PanelName::Frame9);
        break;
    case NavigationStep::Exit:
        ShowPanel(PanelName::Frame12);
        break;
    case NavigationStep::Messages:
        if (checks_.FolderIsChosen() && checks_.TemplateIsChosen()) {
            OpenFromMain(WindowName::Form14);
        }
        break;
    case NavigationStep::Fonts:
        OpenFromMain(WindowName::Form9);
        break;
    case NavigationStep::Build:
        if (checks_.BuildMayStart()) {
            OpenFromMain(WindowName::Form8);
        }
        break;
    }
}

Panel& Form1::ShowPanel(PanelName name) {
    constexpr std::array<NavigationStep, PanelCount> Steps{
        NavigationStep::MainSettings, NavigationStep::AutorunInfo, NavigationStep::Commands,
        NavigationStep::Sound,        NavigationStep::Splash,      NavigationStep::Exit};
    const auto index = static_cast<std::size_t>(name);
    HidePanels();
    Panel*& panel = panels_.at(index);
    if (panel == nullptr) {
        panel = MakePanel(name, Context(), *player_, this);
        panel->setGeometry(PanelPlace);
        hint_->Watch(*panel);
        // A new panel is the last in the tab order; the help stands below it.
        setTabOrder(&LastTabStop(*this), help_);
    }
    panel->ShowDocument();
    panel->show();
    column_->Mark(Steps.at(index));
    return *panel;
}

void Form1::HidePanels() {
    for (Panel* panel : panels_) {
        if (panel != nullptr) {
            panel->hide();
        }
    }
}

void Form1::ShowDocument() {
    const std::string& path = Document().Working.ProjectPath;
    const QString title = path.empty() ? QStringLiteral("New project") : ToQString(path);
    title_->setToolTip(title);
    title_->setText(title_->fontMetrics().elidedText(title, Qt::ElideMiddle, title_->width()));
    for (Panel* panel : panels_) {
        if (panel != nullptr && !panel->isHidden()) {
            panel->ShowDocument();
        }
    }
}

void Form1::ShowMainSettings() {
    ShowPanel(PanelName::Frame2);
}

void Form1::OpenTemplateWindow() {
    OpenFromMain(WindowName::Form7);
}

void Form1::BrowseCdFolder() {
    static_cast<Frame2&>(ShowPanel(PanelName::Frame2)).BrowseCdFolder();
}

void Form1::FocusCdFolder() {
    static_cast<Frame2&>(ShowPanel(PanelName::Frame2)).FocusCdFolder();
}

void Form1::RestoreHint() {
    hint_->Restore();
}

void Form1::ShowPicturePreview(const std::string& path) {
    ShowPreview(Context(), path, geometry());
}

void Form1::StopSound() {
    player_->mmStop();
}

void Form1::SetVisible(bool visible) {
    if (visible) {
        ShowDocument();
        // A window that closed because the user went to another program must not call the user
        // back.
        if (QGuiApplication::applicationState() == Qt::ApplicationActive) {
            Present();
        } else {
            show();
        }
    } else {
        hide();
    }
}

void Form1::ShowBuildTooltip() {
    const QString folder = ToQString(Document().CdFolder());
    column_->Button(NavigationStep::Build)
        .setToolTip(folder.isEmpty()
                        ? QStringLiteral("Build autorun package")
                        : QStringLiteral("Build autorun package. It will be saved in ") + folder);
}

void Form1::OpenMenu(MenuSide side) {
    constexpr int LeftShift = 50; // twips
    const PictureButton& label = side == MenuSide::File ? *fileMenu_ : *programMenu_;
    auto& menu = static_cast<menu1&>(Windows().Load(WindowName::menu1));
    menu.ShowSide(side);
    menu.move(mapToGlobal(label.geometry().bottomLeft() + QPoint(-PixelsOf(LeftShift), 1)));
    menu.Present();
}

void Form1::ServeStoredAction() {
    // A dialog that was opened since the entry was chosen is to be ended first.
    if (QApplication::activeModalWidget() != nullptr) {
        return;
    }
    const auto action = static_cast<MenuAction>(Session().menuAction);
    Session().menuAction = 0;
    Serve(action);
}

void Form1::Serve(MenuAction action) {
    switch (action) {
    case MenuAction::OpenProject:
        commands_.OpenProject();
        break;
    case MenuAction::NewProject:
        commands_.NewProject();
        break;
    case MenuAction::SaveProject:
        commands_.SaveProject();
        break;
    case MenuAction::SaveProjectAs:
        commands_.SaveProjectAs();
        break;
    case MenuAction::ExitProgram:
        StopSound();
        close();
        break;
    case MenuAction::ProgramSettings:
        OpenFromMain(WindowName::Form3);
        break;
    case MenuAction::Help:
        OpenHelpOrTell(this, Session().programFolder);
        break;
    case MenuAction::About:
        OpenFromMain(WindowName::frmAbout);
        break;
    case MenuAction::WebPage:
        ReportFailure(this, OpenWebPage(MakerWebPage));
        break;
    case MenuAction::Mail:
        ReportFailure(this, WriteMail(MakerMailAddress, MakerMailSubject));
        break;
    case MenuAction::Examples:
        commands_.OpenExample();
        break;
    case MenuAction::None:
        break;
    }
}

void Form1::MakeKeys() {
    const std::pair<QKeySequence, MenuAction> keys[] = {
        {Qt::Key_F1, MenuAction::Help},
        {QKeySequence::Save, MenuAction::SaveProject},
        {QKeySequence::Open, MenuAction::OpenProject},
        {QKeySequence::New, MenuAction::NewProject}};
    for (const auto& entry : keys) {
        // Combo boxes search their lists for any key that is pressed in them; a shortcut comes
        // first.
        connect(new QShortcut(entry.first, this), &QShortcut::activated, this,
                [this, action = entry.second] { Serve(action); });
    }
}

} // namespace tavmoor
