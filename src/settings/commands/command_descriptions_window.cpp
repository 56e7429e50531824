#include "settings/commands/command_descriptions_window.h"

#include "core/text/value_encoding.h"
#include "services/colors/color_pick.h"
#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/controls/picture_button.h"
#include "services/controls/text_boxes.h"
#include "services/controls/value_label.h"
#include "services/dialogs/shell_report.h"
#include "services/fields/field_binding.h"
#include "services/fields/field_pickers.h"
#include "services/look/theme.h"
#include "services/values/color_value.h"
#include "services/windows/program_session.h"
#include "settings/commands/command_look_sample.h"

#include <QGroupBox>
#include <QShowEvent>

#include <array>

namespace tavmoor {

namespace {

constexpr WindowLook Form4Look{.name = WindowName::Form4,
                               .objectName = "Form4",
                               .title = u"Command descriptions",
                               .dragArea = "Image1"};

/// The controls of one command.
struct DescriptionRow {
    const char* command; ///< the label with the command's title
    const char* title;
    const char* text;
};

constexpr std::array DescriptionRows{
    DescriptionRow{"Label93", "Text30", "Text31"}, DescriptionRow{"Label1", "Text3", "Text32"},
    DescriptionRow{"Label2", "Text4", "Text33"},   DescriptionRow{"Label3", "Text5", "Text34"},
    DescriptionRow{"Label4", "Text6", "Text1"},    DescriptionRow{"Label5", "Text7", "Text2"},
};

using D = ProjectDocument;

template <auto Member>
constexpr auto MenuLook = At<&D::IzvrsneKomande, Member>;

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

} // namespace

Form4::Form4(ProgramContext context)
    : SkinnedWindow(context, Form4Look),
      binder_(new FieldBinder(*this, Document(), Storing::AtOnce)) {
    SetHidesOnClose(true);
    setFixedWidth(WindowWidth);
    auto* layout = MakeColumn(Body());
    SetWindowMargins(*layout);
    layout->addWidget(
        MakeParagraph("Label85",
                      QStringLiteral("Add description for all commands, buttons that will display "
                                     "when user place mouse over the command..."),
                      Body()));
    layout->addLayout(MakeDescriptions());
    auto* heading = MakeLabel("Label13", u"Menu/buttons properties", Body());
    heading->setFont(theme::HeadingFont());
    layout->addWidget(heading);
    layout->addLayout(MakeLook());
}

QLayout* Form4::MakeDescriptions() {
    constexpr int TitleStretch = 2;
    constexpr int TextStretch = 5;
    auto* grid = MakeGrid();
    grid->setVerticalSpacing(RowGap);
    grid->setColumnMinimumWidth(0, CommandWidth);
    grid->setColumnStretch(1, TitleStretch);
    grid->setColumnStretch(2, TextStretch);
    grid->addWidget(MakeLabel("Label91", u"Description title", Body()), 0, 1);
    grid->addWidget(MakeLabel("Label92", u"Detail description", Body()), 0, 2);
    for (std::size_t command = 1; command <= DescriptionRows.size(); ++command) {
        AddRow(*grid, command);
    }
    return grid;
}

void Form4::AddRow(QGridLayout& grid, std::size_t command) {
    const DescriptionRow& names = DescriptionRows.at(command - 1);
    const int line = static_cast<int>(command);
    const QString number = QStringLiteral("Command %1: ").arg(command);
    auto* head = new ValueLabel(names.command, Body());
    head->setProperty("look", QString());
    head->setFixedWidth(CommandWidth);
    binder_->Bind(*head,
                  At<&D::IzvrsneKomande, &CommandLook::Komande, &FixedCommand::Opis>[command]);
    auto* title = new TextBox(names.title, Body());
    title->setAccessibleName(number + QStringLiteral("Description title"));
    binder_->Bind(*title, At<&D::OpisKomandi, &CommandDescription::C>[command]);
    auto* text = new MemoBox(names.text, Body());
    text->setAccessibleName(number + QStringLiteral("Detail description"));
    text->document()->setDocumentMargin(TextMargin);
    text->setFixedHeight(TextHeight);
    binder_->Bind(*text, At<&D::OpisKomandi, &CommandDescription::O>[command]);
    grid.addWidget(head, line, 0);
    grid.addWidget(title, line, 1);
    grid.addWidget(text, line, 2);
}

QLayout* Form4::MakeLook() {
    auto* row = MakeRow(nullptr, theme::Margin);
    row->addLayout(MakeLookButtons());
    sample_ = new CommandLookSample(Body());
    binder_->BindTextColor(sample_->Sample(), MenuLook<&CommandLook::Bojaslova>);
    binder_->BindBackColor(sample_->Sample(), MenuLook<&CommandLook::Bojapozadinekomandi>);
    binder_->BindFontName(sample_->Sample(), MenuLook<&CommandLook::Font>);
    binder_->BindFontSize(sample_->Sample(), MenuLook<&CommandLook::Velicina>);
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
    auto* title = MakeParagraph("Label6", QStringLiteral("Install Mozilla Firefox"), box);
    QFont bold = theme::BaseFont();
    bold.setBold(true);
    title->setFont(bold);
    inside->addWidget(title);
    inside->addWidget(
        MakeParagraph("Label7",
                      QStringLiteral("This will install Mozilla Firefox browser on your computer. "
                                     "Click the button to continue"),
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
    PickColor(Context(), ColorMenuPlace(button), *this, [this, field](const MenuResult& result) {
        if (const auto* color = std::get_if<ColorValue>(&result)) {
            Document().IzvrsneKomande.*field = ColorText(*color);
            binder_->Show();
        }
    });
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
