#include "settings/commands/commands_panel.h"

#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/controls/path_box.h"
#include "services/controls/picture_button.h"
#include "services/controls/value_label.h"
#include "services/dialogs/message_box.h"
#include "services/fields/disc_target.h"
#include "services/look/theme.h"
#include "services/values/color_value.h"
#include "services/values/qt_text.h"
#include "services/values/twips.h"
#include "services/windows/program_session.h"
#include "settings/project/step_checks.h"

#include <QCheckBox>
#include <QComboBox>

#include <array>

namespace tavmoor {

namespace {

/// The controls of one command.
struct CommandRow {
    const char* title;
    const char* target;
    const char* parameter;
    const char* type;
    const char* closes;
    const char* browse;
    const char* clear;
};

constexpr std::array CommandRows{
    CommandRow{"Text24", "Text11", "Text12", "Combo6", "Check9", "Command31", "Command36"},
    CommandRow{"Text25", "Text13", "Text14", "Combo1", "Check10", "Command26", "Command37"},
    CommandRow{"Text26", "Text15", "Text16", "Combo2", "Check11", "Command27", "Command38"},
    CommandRow{"Text27", "Text17", "Text18", "Combo3", "Check12", "Command28", "Command39"},
    CommandRow{"Text28", "Text19", "Text20", "Combo4", "Check13", "Command29", "Command40"},
    CommandRow{"Text29", "Text21", "Text22", "Combo5", "Check14", "Command30", "Command41"},
};

/// A column of the rows that shows a field.
struct CommandColumn {
    const char* head; ///< object name of the head's label
    const char16_t* text;
    int place; ///< in the grid, whose other columns are the browse and clear buttons
    int stretch;
    int leastWidth;        ///< logical pixels; 0 leaves it to the control
    bool centered = false; ///< its controls, below a head that is, too
};

constexpr CommandColumn TitleColumn{"Label75", u"Command title", 0, 4, 110};
constexpr CommandColumn TargetColumn{"Label64", u"Target filename", 1, 5, 150};
constexpr int BrowsePlace = 2;
constexpr CommandColumn ParameterColumn{"Label65", u"Parameter", 3, 2, 80};
constexpr CommandColumn TypeColumn{"Label15", u"Command type", 4, 0, 0};
constexpr CommandColumn ClosesColumn{"Label69", u"This command closes autorun", 5, 0, 96, true};
constexpr int ClearPlace = 6;

constexpr std::array Columns{TitleColumn, TargetColumn, ParameterColumn, TypeColumn, ClosesColumn};

using D = ProjectDocument;

/// A field of a fixed command, to be taken at the command's number.
template <auto Member>
constexpr auto Command = At<&D::IzvrsneKomande, &CommandLook::Komande, Member>;

constexpr ColorValue NoFolderColor = 255;
constexpr ColorValue FolderColor = 6382708;
constexpr int MenuTitlesNoteLeft = 4830; // twips
constexpr std::string_view MenuTitlesTemplate = "Nexus";
constexpr int RowGap = 4;
constexpr int ColumnGap = 6;

QComboBox* MakeTypeBox(const char* objectName, QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->setObjectName(QString::fromLatin1(objectName));
    for (const std::string_view kind : words::CommandKinds) {
        box->addItem(ToQString(kind));
    }
    return box;
}

} // namespace

Frame4::Frame4(ProgramContext context, QWidget* parent)
    : Panel(context, "Frame4", u"Set commands to run target files", parent) {
    auto* layout = MakeColumn(Body(), RowGap);
    auto* about =
        MakeParagraph("Label63",
                      QStringLiteral("Start any application or file located on your CD, open Web "
                                     "locations, send e-mails. Read help for detail instructions."),
                      Body());
    LookLikeNote(*about);
    layout->addWidget(about);
    folder_ = new ValueLabel("Label68", Body());
    folder_->setProperty("look", QString());
    folder_->setMinimumHeight(0);
    layout->addWidget(folder_);
    auto* grid = MakeGrid(nullptr, RowGap);
    grid->setHorizontalSpacing(ColumnGap);
    AddHeads(*grid);
    for (std::size_t command = 1; command <= CommandRows.size(); ++command) {
        AddRow(*grid, command);
    }
    layout->addLayout(grid);
    layout->addStretch(1);
    layout->addLayout(MakeExitRow());
    layout->addWidget(MakeDescriptionsButton(), 0, Qt::AlignLeft);
    layout->addWidget(MakeMenuTitlesRow());
}

void Frame4::AddHeads(QGridLayout& grid) {
    for (const CommandColumn& column : Columns) {
        auto* head = MakeParagraph(column.head, QString::fromUtf16(column.text), Body());
        head->setFont(theme::NoteFont());
        const auto side = column.centered ? Qt::AlignHCenter : Qt::AlignLeft;
        head->setAlignment(side | Qt::AlignBottom);
        grid.addWidget(head, 0, column.place);
        grid.setColumnStretch(column.place, column.stretch);
        grid.setColumnMinimumWidth(column.place, column.leastWidth);
    }
}

void Frame4::AddRow(QGridLayout& grid, std::size_t command) {
    const CommandRow& names = CommandRows.at(command - 1);
    const int line = static_cast<int>(command);
    const auto add = [&](const CommandColumn& column, QWidget* control) {
        control->setAccessibleName(
            QStringLiteral("%1 %2").arg(QString::fromUtf16(column.text)).arg(command));
        grid.addWidget(control, line, column.place,
                       column.centered ? Qt::AlignCenter : Qt::Alignment());
    };
    const auto addButton = [&](const ButtonDescription& description, int place, auto action) {
        auto* button = new PictureButton(description, Body());
        connect(button, &QAbstractButton::clicked, this, action);
        grid.addWidget(button, line, place);
    };
    // Made from left to right, as the tab key goes.
    auto* title = new TextBox(names.title, Body());
    Binder().Bind(*title, Command<&FixedCommand::Opis>[command]);
    add(TitleColumn, title);
    auto* target = new PathBox(names.target, PathKind::File, Body());
    Binder().Bind(*target, Command<&FixedCommand::Fajl>[command]);
    add(TargetColumn, target);
    connect(target, &PathBox::PathGiven, this, [this, command](const QString& path) {
        SetTarget(command, DiscTarget(FromQString(path), Document().CdFolder()));
    });
    addButton({names.browse, "browse", u"", u"Choose files to run/open...", ButtonLook::Icon},
              BrowsePlace, [this, command] { BrowseTarget(command); });
    auto* parameter = new TextBox(names.parameter, Body());
    Binder().Bind(*parameter, Command<&FixedCommand::Parametar>[command]);
    add(ParameterColumn, parameter);
    auto* type = MakeTypeBox(names.type, Body());
    Binder().Bind(*type, Command<&FixedCommand::Vrsta>[command]);
    add(TypeColumn, type);
    auto* closes = new QCheckBox(Body());
    closes->setObjectName(QString::fromLatin1(names.closes));
    Binder().Bind(*closes, Command<&FixedCommand::Zatvara>[command]);
    add(ClosesColumn, closes);
    addButton({names.clear, "remove", u"", u"Remove command/clear", ButtonLook::Icon}, ClearPlace,
              [this, command] { ClearCommand(command); });
}

QLayout* Frame4::MakeExitRow() {
    constexpr int CaptionWidth = 180;
    auto* row = MakeRow();
    auto* caption = new TextBox("Text30", Body());
    caption->setFixedWidth(CaptionWidth);
    Binder().Bind(*caption, At<&D::IzvrsneKomande, &CommandLook::Izlaz>);
    auto* more =
        new PictureButton({"Command56", "more_commands",
                           u"If y&ou need more commands/buttons click here", u"", ButtonLook::Link},
                          Body());
    EnableWhenStanding(*more, Windows(), WindowName::Form10);
    connect(more, &QAbstractButton::clicked, this, &Frame4::OpenAdditionalCommands);
    row->addWidget(MakeCaption(u"Exit b&utton caption", caption));
    row->addWidget(caption);
    row->addStretch(1);
    row->addWidget(more);
    return row;
}

PictureButton* Frame4::MakeDescriptionsButton() {
    auto* button =
        new PictureButton({"Command42", "description",
                           u"Click here to &add description to the commands, set font and colors",
                           u"Click to set text describing command action", ButtonLook::Link},
                          Body());
    EnableWhenStanding(*button, Windows(), WindowName::Form4);
    connect(button, &QAbstractButton::clicked, this,
            [this] { Windows().OpenFromMain(WindowName::Form4); });
    return button;
}

QWidget* Frame4::MakeMenuTitlesRow() {
    auto* row = new QWidget(Body());
    menuTitles_ = new PictureButton(
        {"Command57", "menu_titles", u"Menu tit&les", u"", ButtonLook::Link}, row);
    EnableWhenStanding(*menuTitles_, Windows(), WindowName::Form11);
    connect(menuTitles_, &QAbstractButton::clicked, this,
            [this] { Windows().OpenFromMain(WindowName::Form11); });
    menuTitlesNote_ = MakeLabel("Label22", u"<-- only if supported in selected template", row);
    menuTitlesNote_->setProperty("look", QStringLiteral("note"));
    row->setFixedHeight(menuTitles_->sizeHint().height());
    return row;
}

void Frame4::ShowDocument() {
    Panel::ShowDocument();
    ShowFolder();
    ShowMenuTitles();
}

void Frame4::ShowFolder() {
    const std::string& folder = Document().CdFolder();
    const QString text = QStringLiteral("CD-ROM files folder: ");
    folder_->SetFullText(text +
                         (folder.empty() ? QStringLiteral("NOT SELECTED") : ToQString(folder)));
    folder_->setStyleSheet(QStringLiteral("color: %1")
                               .arg(ToQColor(folder.empty() ? NoFolderColor : FolderColor).name()));
}

void Frame4::ShowMenuTitles() {
    const bool offered = Document().Working.TemplateName == MenuTitlesTemplate;
    menuTitles_->setVisible(offered);
    menuTitles_->adjustSize();
    menuTitlesNote_->adjustSize();
    const int left = offered ? PixelsOf(MenuTitlesNoteLeft) : menuTitles_->x();
    menuTitlesNote_->move(left, (menuTitles_->height() - menuTitlesNote_->height()) / 2);
}

void Frame4::OpenAdditionalCommands() {
    if (Document().Working.TemplateName.empty()) {
        ShowMessageBox(this, {QStringLiteral("Please select template!"), {}});
        Windows().Main()->ShowMainSettings();
        return;
    }
    Windows().OpenFromMain(WindowName::Form10);
}

void Frame4::BrowseTarget(std::size_t command) {
    if (!StepChecks(Context(), *this).FolderIsValid()) {
        return;
    }
    if (auto target = PickDiscTarget(*this, Document().CdFolder())) {
        SetTarget(command, std::move(*target));
    }
}

void Frame4::SetTarget(std::size_t command, std::string target) {
    Document().IzvrsneKomande.Komande.at(command).Fajl = std::move(target);
    ShowDocument();
}

void Frame4::ClearCommand(std::size_t command) {
    Document().IzvrsneKomande.Komande.at(command) = {};
    ShowDocument();
}

} // namespace tavmoor
