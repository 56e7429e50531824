#include "settings/commands/command_descriptions_window.h"

#include "core/text/value_encoding.h"
#include "services/colors/color_pick.h"
#include "services/controls/picture_button.h"
#include "services/controls/text_boxes.h"
#include "services/controls/value_label.h"
#include "services/dialogs/shell_report.h"
#include "services/fields/field_binding.h"
#include "services/fields/field_pickers.h"
#include "services/look/theme.h"
#include "services/values/color_value.h"
#include "services/values/qt_text.h"
#include "services/windows/program_session.h"
#include "settings/commands/command_look_sample.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QShowEvent>

#include <array>

namespace tavmoor {

namespace {

constexpr WindowLook Form4Look{.name = WindowName::Form4,
                               .objectName = "Form4",
                               .title = u"Command descriptions",
                               .dragArea = "Image1"};

/// The labels with the titles of the commands.
constexpr std::array CommandLabels{"Label93", "Label1", "Label2", "Label3", "Label4", "Label5"};

constexpr std::string_view Section = "Opis komandi";
constexpr std::string_view LookSection = "Izvrsne komande";

/// The title and the text of one command after the other; then the look.
constexpr std::array Fields{
    FieldBinding{"Text30", FieldForm::Text, Section, "C1"},
    FieldBinding{"Text31", FieldForm::Text, Section, "O1"},
    FieldBinding{"Text3", FieldForm::Text, Section, "C2"},
    FieldBinding{"Text32", FieldForm::Text, Section, "O2"},
    FieldBinding{"Text4", FieldForm::Text, Section, "C3"},
    FieldBinding{"Text33", FieldForm::Text, Section, "O3"},
    FieldBinding{"Text5", FieldForm::Text, Section, "C4"},
    FieldBinding{"Text34", FieldForm::Text, Section, "O4"},
    FieldBinding{"Text6", FieldForm::Text, Section, "C5"},
    FieldBinding{"Text1", FieldForm::Text, Section, "O5"},
    FieldBinding{"Text7", FieldForm::Text, Section, "C6"},
    FieldBinding{"Text2", FieldForm::Text, Section, "O6"},
    FieldBinding{"Label11", FieldForm::TextColor, LookSection, "Boja slova"},
    FieldBinding{"Label11", FieldForm::BackColor, LookSection, "Boja pozadine komandi"},
    FieldBinding{"Label11", FieldForm::FontName, LookSection, "Font"},
    FieldBinding{"Label11", FieldForm::FontSize, LookSection, "Velicina"},
};

/// The look where the project says nothing.
constexpr ColorValue UsualTextColor = 52479;
constexpr ColorValue UsualBackColor = -2147483633; ///< the system's button face
constexpr const char* UsualFont = "Ms Sans Serif";

// Logical pixels.
constexpr int WindowWidth = 900;
constexpr int CommandWidth = 130;
constexpr int TextHeight = 44; ///< two lines
constexpr int TextMargin = 2;
constexpr int RowGap = 5;
constexpr int ExampleWidth = 300;

QLabel* MakeLabel(const char* objectName, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(objectName));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

Form4::Form4(ProgramContext context) : SkinnedWindow(context, Form4Look) {
    SetHidesOnClose(true);
    setFixedWidth(WindowWidth);
    auto* layout = new QVBoxLayout(Body());
    layout->setContentsMargins(theme::Margin, theme::Margin, theme::Margin, theme::Margin);
    layout->setSpacing(theme::Gap);
    layout->addWidget(MakeLabel("Label85",
                                QStringLiteral("Add description for all commands, buttons that "
                                               "will display when user place mouse over the "
                                               "command..."),
                                Body()));
    layout->addLayout(MakeDescriptions());
    auto* heading = MakeLabel("Label13", QStringLiteral("Menu/buttons properties"), Body());
    heading->setFont(theme::HeadingFont());
    layout->addWidget(heading);
    layout->addLayout(MakeLook());
    binder_ = new FieldBinder(*this, Document(), Fields, Storing::AtOnce);
}

QLayout* Form4::MakeDescriptions() {
    constexpr int TitleStretch = 2;
    constexpr int TextStretch = 5;
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(theme::Gap);
    grid->setVerticalSpacing(RowGap);
    grid->setColumnMinimumWidth(0, CommandWidth);
    grid->setColumnStretch(1, TitleStretch);
    grid->setColumnStretch(2, TextStretch);
    grid->addWidget(MakeLabel("Label91", QStringLiteral("Description title"), Body()), 0, 1);
    grid->addWidget(MakeLabel("Label92", QStringLiteral("Detail description"), Body()), 0, 2);
    for (std::size_t row = 0; row < CommandLabels.size(); ++row) {
        AddRow(*grid, static_cast<int>(row));
    }
    return grid;
}

void Form4::AddRow(QGridLayout& grid, int row) {
    const auto index = static_cast<std::size_t>(row);
    const QString command = QStringLiteral("Command %1").arg(row + 1);
    auto* head = new ValueLabel(CommandLabels.at(index), Body());
    head->setProperty("look", QString());
    head->setFixedWidth(CommandWidth);
    head->SetFullText(command);
    auto* title = new TextBox(Fields.at(2 * index).control, Body());
    title->setAccessibleName(command + QStringLiteral(": Description title"));
    auto* text = new MemoBox(Fields.at(2 * index + 1).control, Body());
    text->setAccessibleName(command + QStringLiteral(": Detail description"));
    text->document()->setDocumentMargin(TextMargin);
    text->setFixedHeight(TextHeight);
    grid.addWidget(head, row + 1, 0);
    grid.addWidget(title, row + 1, 1);
    grid.addWidget(text, row + 1, 2);
}

QLayout* Form4::MakeLook() {
    auto* row = new QHBoxLayout;
    row->setSpacing(theme::Margin);
    row->addLayout(MakeLookButtons());
    sample_ = new CommandLookSample(Body());
    row->addWidget(sample_, 1);
    auto* right = new QVBoxLayout;
    right->addWidget(MakeExample());
    right->addStretch(1);
    right->addLayout(MakeCommands());
    row->addLayout(right);
    return row;
}

QLayout* Form4::MakeLookButtons() {
    auto* column = new QVBoxLayout;
    auto* fore = new PictureButton({"Command2", "palette", u"&Fore color"}, Body());
    auto* back = new PictureButton({"Command3", "palette", u"&Background color"}, Body());
    auto* font = new PictureButton({"Command4", "font", u"Fo&nt (name, size, effects)"}, Body());
    connect(fore, &QAbstractButton::clicked, this,
            [this, fore] { ChooseColor(*fore, &CommandLook::Bojaslova); });
    connect(back, &QAbstractButton::clicked, this,
            [this, back] { ChooseColor(*back, &CommandLook::Bojapozadinekomandi); });
    connect(font, &QAbstractButton::clicked, this, &Form4::ChooseFont);
    for (auto* button : {fore, back, font}) {
        column->addWidget(button);
    }
    column->addStretch(1);
    return column;
}

QWidget* Form4::MakeExample() {
    auto* box = new QGroupBox(QStringLiteral("Example"), Body());
    box->setObjectName(QStringLiteral("Label8"));
    box->setFixedWidth(ExampleWidth);
    auto* inside = new QVBoxLayout(box);
    auto* title = MakeLabel("Label6", QStringLiteral("Install Mozilla Firefox"), box);
    QFont bold = theme::BaseFont();
    bold.setBold(true);
    title->setFont(bold);
    inside->addWidget(title);
    inside->addWidget(MakeLabel("Label7",
                                QStringLiteral("This will install Mozilla Firefox browser on your "
                                               "computer. Click the button to continue"),
                                box));
    return box;
}

QLayout* Form4::MakeCommands() {
    auto* row = new QHBoxLayout;
    auto* help = new PictureButton({"Command1", "help", u"&Help"}, Body());
    auto* close =
        new PictureButton({"Command43", "close", u"&Close", u"", ButtonLook::Primary}, Body());
    connect(help, &QAbstractButton::clicked, this,
            [this] { OpenHelpOrTell(this, Session().programFolder); });
    connect(close, &QAbstractButton::clicked, this, &QWidget::close);
    row->addStretch(1);
    row->addWidget(help);
    row->addWidget(close);
    SetKeyButtons(close, close);
    return row;
}

void Form4::showEvent(QShowEvent* event) {
    // Not when the window system shows it again after minimising.
    if (!event->spontaneous()) {
        ShowDocument();
    }
    SkinnedWindow::showEvent(event);
}

void Form4::ShowDocument() {
    CompleteLook();
    binder_->Show();
    ShowCommandTitles();
}

void Form4::ShowCommandTitles() {
    for (std::size_t row = 0; row < CommandLabels.size(); ++row) {
        auto* head = findChild<ValueLabel*>(QString::fromLatin1(CommandLabels.at(row)));
        head->SetFullText(ToQString(Document().IzvrsneKomande.Komande.at(row + 1).Opis));
    }
}

void Form4::CompleteLook() {
    CommandLook& look = Document().IzvrsneKomande;
    if (!ParseColorText(look.Bojaslova)) {
        look.Bojaslova = ColorText(UsualTextColor);
    }
    if (!ParseColorText(look.Bojapozadinekomandi)) {
        look.Bojapozadinekomandi = ColorText(UsualBackColor);
    }
    if (look.Font.empty()) {
        look.Font = UsualFont;
    }
    look.Velicina = RoundSize(look.Velicina);
}

void Form4::ChooseColor(const PictureButton& button, std::string CommandLook::*field) {
    if (const auto color = PickColor(Context(), ColorMenuPlace(button), *this)) {
        Document().IzvrsneKomande.*field = ColorText(*color);
        binder_->Show();
    }
}

void Form4::ChooseFont() {
    CommandLook& look = Document().IzvrsneKomande;
    FontSpec font = sample_->Effects();
    font.name = look.Font;
    font.size = look.Velicina;
    const auto picked = PickFont(*this, {font, ParseColorText(look.Bojaslova).value_or(0)});
    if (!picked || picked->font.name.empty()) {
        return;
    }
    look.Font = picked->font.name;
    look.Velicina = picked->font.size;
    sample_->SetEffects(picked->font);
    binder_->Show();
}

} // namespace tavmoor
