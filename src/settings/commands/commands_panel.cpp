#include "settings/commands/commands_panel.h"

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
#include <QGridLayout>
#include <QLabel>

#include <array>
#include <deque>
#include <vector>

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
    const char* CommandRow::*control;
    FieldForm form;
    const char* key; ///< without the command's number
    int place;       ///< in the grid, whose other columns are the browse and clear buttons
    int stretch;
    int leastWidth; ///< logical pixels; 0 leaves it to the control
};

constexpr int BrowsePlace = 2;
constexpr int ClearPlace = 6;

constexpr std::array Columns{
    CommandColumn{"Label75", u"Command title", &CommandRow::title, FieldForm::Text, "Opis", 0, 4,
                  110},
    CommandColumn{"Label64", u"Target filename", &CommandRow::target, FieldForm::Text, "Fajl", 1, 5,
                  150},
    CommandColumn{"Label65", u"Parameter", &CommandRow::parameter, FieldForm::Text, "Parametar", 3,
                  2, 80},
    CommandColumn{"Label15", u"Command type", &CommandRow::type, FieldForm::Choice, "Vrsta", 4, 0,
                  0},
    CommandColumn{"Label69", u"This command closes autorun", &CommandRow::closes,
                  FieldForm::Checked, "Zatvara", 5, 0, 96},
};

constexpr std::string_view Section = "Izvrsne komande";

/// The table that ties the controls to the document: five fields of each row, and the exit caption.
std::span<const FieldBinding> CommandBindings() {
    static const std::vector<FieldBinding> bindings = [] {
        static std::deque<std::string> keys;
        std::vector<FieldBinding> table{{"Text30", FieldForm::Text, Section, "Izlaz"}};
        for (std::size_t row = 0; row < CommandRows.size(); ++row) {
            for (const CommandColumn& column : Columns) {
                keys.push_back(column.key + std::to_string(row + 1));
                table.push_back(
                    {CommandRows.at(row).*column.control, column.form, Section, keys.back()});
            }
        }
        return table;
    }();
    return bindings;
}

constexpr ColorValue NoFolderColor = 255;
constexpr ColorValue FolderColor = 6382708;
constexpr int MenuTitlesNoteLeft = 4830; // twips
constexpr std::string_view MenuTitlesTemplate = "Nexus";
constexpr int RowGap = 4;
constexpr int ColumnGap = 6;

QComboBox* MakeTypeBox(QWidget* parent) {
    auto* box = new QComboBox(parent);
    box->addItems({QStringLiteral("Send mail"), QStringLiteral("Visit web page"),
                   QStringLiteral("Run program"), QStringLiteral("Open file")});
    return box;
}

QLabel* MakeLabel(const char* objectName, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(objectName));
    return label;
}

QWidget* NewControl(const CommandColumn& column, const char* name, QWidget* parent) {
    switch (column.form) {
    case FieldForm::Choice:
        return MakeTypeBox(parent);
    case FieldForm::Checked:
        return new QCheckBox(parent);
    default:
        return column.control == &CommandRow::target ? new PathBox(name, PathKind::File, parent)
                                                     : new TextBox(name, parent);
    }
}

QWidget* MakeControl(const CommandColumn& column, std::size_t row, QWidget* parent) {
    const char* name = CommandRows.at(row).*column.control;
    QWidget* control = NewControl(column, name, parent);
    control->setObjectName(QString::fromLatin1(name));
    control->setAccessibleName(
        QStringLiteral("%1 %2").arg(QString::fromUtf16(column.text)).arg(row + 1));
    return control;
}

} // namespace

Frame4::Frame4(ProgramContext context, QWidget* parent)
    : Panel(context, "Frame4", u"Set commands to run target files", parent) {
    auto* layout = new QVBoxLayout(Body());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(RowGap);
    auto* about = MakeLabel("Label63",
                            QStringLiteral("Start any application or file located on your CD, open "
                                           "Web locations, send e-mails. Read help for detail "
                                           "instructions."),
                            Body());
    about->setProperty("look", QStringLiteral("note"));
    about->setFont(theme::NoteFont());
    about->setWordWrap(true);
    layout->addWidget(about);
    folder_ = new ValueLabel("Label68", Body());
    folder_->setProperty("look", QString());
    folder_->setMinimumHeight(0);
    layout->addWidget(folder_);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(ColumnGap);
    grid->setVerticalSpacing(RowGap);
    AddHeads(*grid);
    for (std::size_t row = 0; row < CommandRows.size(); ++row) {
        AddRow(*grid, static_cast<int>(row));
    }
    layout->addLayout(grid);
    layout->addStretch(1);
    layout->addLayout(MakeExitRow());
    layout->addWidget(MakeDescriptionsButton(), 0, Qt::AlignLeft);
    layout->addWidget(MakeMenuTitlesRow());
    Bind(CommandBindings());
}

void Frame4::AddHeads(QGridLayout& grid) {
    for (const CommandColumn& column : Columns) {
        auto* head = MakeLabel(column.head, QString::fromUtf16(column.text), Body());
        head->setFont(theme::NoteFont());
        head->setWordWrap(true);
        const auto side = column.form == FieldForm::Checked ? Qt::AlignHCenter : Qt::AlignLeft;
        head->setAlignment(side | Qt::AlignBottom);
        grid.addWidget(head, 0, column.place);
        grid.setColumnStretch(column.place, column.stretch);
        grid.setColumnMinimumWidth(column.place, column.leastWidth);
    }
}

void Frame4::AddRow(QGridLayout& grid, int row) {
    const auto index = static_cast<std::size_t>(row);
    const CommandRow& names = CommandRows.at(index);
    const std::size_t command = index + 1;
    const auto addButton = [&](const ButtonDescription& description, int place, auto action) {
        auto* button = new PictureButton(description, Body());
        connect(button, &QAbstractButton::clicked, this, action);
        grid.addWidget(button, row + 1, place);
    };
    // Made from left to right, as the tab key goes.
    for (const CommandColumn& column : Columns) {
        auto* control = MakeControl(column, index, Body());
        const bool centred = column.form == FieldForm::Checked;
        grid.addWidget(control, row + 1, column.place, centred ? Qt::AlignCenter : Qt::Alignment());
        if (auto* target = qobject_cast<PathBox*>(control)) {
            connect(target, &PathBox::PathGiven, this, [this, command](const QString& path) {
                SetTarget(command, DiscTarget(FromQString(path), Document().CdFolder()));
            });
            addButton(
                {names.browse, "browse", u"", u"Choose files to run/open...", ButtonLook::Icon},
                BrowsePlace, [this, command] { BrowseTarget(command); });
        }
    }
    addButton({names.clear, "remove", u"", u"Remove command/clear", ButtonLook::Icon}, ClearPlace,
              [this, command] { ClearCommand(command); });
}

QLayout* Frame4::MakeExitRow() {
    constexpr int CaptionWidth = 180;
    auto* row = new QHBoxLayout;
    row->setSpacing(theme::Gap);
    auto* label = new QLabel(QStringLiteral("Exit b&utton caption"), Body());
    auto* caption = new TextBox("Text30", Body());
    caption->setFixedWidth(CaptionWidth);
    label->setBuddy(caption);
    auto* more =
        new PictureButton({"Command56", "more_commands",
                           u"If y&ou need more commands/buttons click here", u"", ButtonLook::Link},
                          Body());
    EnableWhenStanding(*more, Windows(), WindowName::Form10);
    connect(more, &QAbstractButton::clicked, this, &Frame4::OpenAdditionalCommands);
    row->addWidget(label);
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
    menuTitlesNote_ =
        MakeLabel("Label22", QStringLiteral("<-- only if supported in selected template"), row);
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
