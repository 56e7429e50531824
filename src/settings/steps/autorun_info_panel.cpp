#include "settings/steps/autorun_info_panel.h"

#include "services/controls/labels.h"
#include "services/controls/layouts.h"
#include "services/controls/picture_button.h"
#include "services/controls/text_boxes.h"
#include "services/controls/value_label.h"
#include "services/fields/color_pick_button.h"
#include "services/fields/field_pickers.h"
#include "services/fields/logo_text_style.h"
#include "services/fields/picture_field.h"

#include <QCheckBox>

#include <optional>

namespace tavmoor {

/// Where the style of a text's font is kept as flags.
struct StyleFlags {
    FieldOf<bool> bold;
    FieldOf<bool> italic;
};

/// A text of the panel.
struct MainTextRow {
    const char16_t* caption;
    const char* box;
    FieldOf<std::string> text;
    bool severalLines = false;
    bool backColor = false; ///< a double click changes the back colour, else the text colour
    FieldOf<ColorValue> color;
    const char* colorButton;
    const char* fontButton;
    const char16_t* fontTooltip;
    const char* fontLabel;
    FieldOf<std::string> font;
    const char* sizeLabel;
    FieldOf<std::string> size;
    bool styleInWords = false; ///< the one text whose font's style is kept in `Stil` and `Efekti`
    std::optional<StyleFlags> style{};
    std::optional<FieldOf<ColorValue>>
        fontColor{}; ///< the text colour, where the font dialog has it
};

namespace {

using T = MainTexts;

template <auto Member>
constexpr auto Main = At<&ProjectDocument::OsnovniPodaci, Member>;

constexpr MainTextRow LogoText{.caption = u"Autorun &Logo text",
                               .box = "Text2",
                               .text = Main<&T::Logotekst>,
                               .color = Main<&T::Logotekstboja>,
                               .colorButton = "Text2Color",
                               .fontButton = "Command13",
                               .fontTooltip = u"Set font for the Autorun Logo text",
                               .fontLabel = "Label21",
                               .font = Main<&T::Font>,
                               .sizeLabel = "Label3",
                               .size = Main<&T::Velicina>,
                               .styleInWords = true};

constexpr MainTextRow MainTitle{.caption = u"Mai&n Autorun title",
                                .box = "Text3",
                                .text = Main<&T::Glavninaslov>,
                                .color = Main<&T::GlnaslovBoja>,
                                .colorButton = "Text3Color",
                                .fontButton = "Command47",
                                .fontTooltip = u"Set font for the Main Autorun title",
                                .fontLabel = "Label6",
                                .font = Main<&T::GlavninaslovFont>,
                                .sizeLabel = "Label7",
                                .size = Main<&T::GlnaslovVel>};

constexpr MainTextRow DescriptionTitle{
    .caption = u"C&D description title",
    .box = "Text4",
    .text = Main<&T::GlavniOpisnaslov>,
    .color = Main<&T::GlavniOpisnaslovBoja>,
    .colorButton = "Text4Color",
    .fontButton = "Command48",
    .fontTooltip = u"Set font for the CD description text",
    .fontLabel = "Label45",
    .font = Main<&T::GlavniOpisnaslovFont>,
    .sizeLabel = "Label4",
    .size = Main<&T::GlavniOpisnaslovVel>,
    .style = StyleFlags{Main<&T::GlavniOpisnaslovBold>, Main<&T::GlavniOpisnaslovItalic>}};

constexpr MainTextRow Description{
    .caption = u"Description text, font, bac&kground and fore color",
    .box = "Text5",
    .text = Main<&T::GlavniOpis>,
    .severalLines = true,
    .backColor = true,
    .color = At<&ProjectDocument::IzvrsneKomande, &CommandLook::Bojapozadine>,
    .colorButton = "Text5Color",
    .fontButton = "Command49",
    .fontTooltip = u"Set font for the description text",
    .fontLabel = "Label8",
    .font = Main<&T::GlavniOpisFont>,
    .sizeLabel = "Label10",
    .size = Main<&T::GlavniOpisVel>,
    .style = StyleFlags{Main<&T::GlavniOpisBold>, Main<&T::GlavniOpisItalic>},
    .fontColor = Main<&T::GlavniOpisBoja>};

constexpr MainTextRow VerticalText{.caption = u"&Vertical text",
                                   .box = "Text31",
                                   .text = Main<&T::Vertekst>,
                                   .color = Main<&T::Vertfontboja>,
                                   .colorButton = "Text31Color",
                                   .fontButton = "Command25",
                                   .fontTooltip = u"Set font for the vertical text",
                                   .fontLabel = "Label77",
                                   .font = Main<&T::Vertfont>,
                                   .sizeLabel = "Label86",
                                   .size = Main<&T::Vertfontvelicina>};

constexpr PictureFieldDescription LogoPicture{.label = "Label16",
                                              .meaning = u"Logo picture",
                                              .browse = "Command12",
                                              .remove = "Command55",
                                              .browseTooltip = u"Choose logo picture",
                                              .removeTooltip = u"Remove logo picture",
                                              .title = "Choose picture...",
                                              .filter = ScreenPictureFilter};

/// The columns of the grid.
enum Column : std::uint8_t { Caption, Box, Color, FontButton, FontName, FontSize, Columns };

// Logical pixels.
constexpr int CaptionWidth = 170;
constexpr int FontNameWidth = 160;
constexpr int FontSizeWidth = 56;
constexpr int LineGap = 6;

} // namespace

Frame3::Frame3(ProgramContext context, QWidget* parent)
    : Panel(context, "Frame3", u"Autorun Info", parent), grid_(MakeGrid(Body())) {
    grid_->setVerticalSpacing(LineGap);
    grid_->setColumnMinimumWidth(Column::Caption, CaptionWidth);
    grid_->setColumnStretch(Column::Box, 1);
    AddTaskBarTitle();
    AddColumnHeads();
    AddText(LogoText);
    AddStyleWords();
    AddLogoPicture();
    AddText(MainTitle);
    AddText(DescriptionTitle);
    AddText(Description);
    AddTransparency();
    AddText(VerticalText);
}

void Frame3::AddCaption(const char16_t* text, QWidget& buddy) {
    auto* label = MakeCaption(text, &buddy, Body());
    label->setWordWrap(true);
    label->setFixedWidth(CaptionWidth);
    // Beside a box of several lines, the caption stands at its first one.
    grid_->addWidget(label, line_, Column::Caption,
                     qobject_cast<MemoBox*>(&buddy) != nullptr ? Qt::AlignTop : Qt::AlignVCenter);
}

void Frame3::AddTaskBarTitle() {
    auto* box = new TextBox("Text1", Body());
    AddCaption(u"&Autorun title(program title visible in a taskbar)", *box);
    grid_->addWidget(box, line_, Column::Box, 1, Column::Columns - Column::Box);
    Binder().Bind(*box, Main<&T::Tasknaslov>);
    ++line_;
}

void Frame3::AddColumnHeads() {
    const auto addHead = [this](const char* name, const char16_t* text, int column, int span) {
        auto* label = MakeLabel(name, text, Body());
        LookLikeNote(*label);
        grid_->addWidget(label, line_, column, 1, span);
    };
    addHead("Label20", u"Double click on the text box to change color", Column::Caption,
            Column::FontButton - Column::Caption);
    addHead("Label5", u"Font settings", Column::FontButton, Column::Columns - Column::FontButton);
    ++line_;
}

void Frame3::AddText(const MainTextRow& row) {
    QWidget* box = row.severalLines ? MakeBox<MemoBox>(row) : MakeBox<TextBox>(row);
    AddCaption(row.caption, *box);
    grid_->addWidget(box, line_, Column::Box);
    grid_->setRowStretch(line_, row.severalLines ? 1 : 0);
    AddColor(row, *box);
    AddFont(row, *box);
    ++line_;
}

template <typename Box>
QWidget* Frame3::MakeBox(const MainTextRow& row) {
    auto* box = new Box(row.box, Body());
    Binder().Bind(*box, row.text);
    return box;
}

void Frame3::AddColor(const MainTextRow& row, QWidget& box) {
    box.setToolTip(row.backColor ? QStringLiteral("Double click to change backcolor")
                                 : QStringLiteral("Double click to change font color"));
    auto* button = new ColorPickButton({row.colorButton, "palette", u"",
                                        row.backColor ? u"Change back color" : u"Change font color",
                                        ButtonLook::Icon},
                                       Context(), box, row.color.In(Document()), Body());
    connect(button, &ColorPickButton::Changed, this, &Frame3::ShowDocument);
    grid_->addWidget(button, line_, Column::Color, Qt::AlignTop);
    if (row.backColor) {
        Binder().BindBackColor(box, row.color);
    } else {
        Binder().BindTextColor(box, row.color);
    }
    if (row.fontColor) {
        Binder().BindTextColor(box, *row.fontColor);
    }
}

void Frame3::AddFont(const MainTextRow& row, QWidget& box) {
    auto* button =
        new PictureButton({row.fontButton, "font", u"", row.fontTooltip, ButtonLook::Icon}, Body());
    connect(button, &QAbstractButton::clicked, this, [this, &row] { ChooseFont(row); });
    grid_->addWidget(button, line_, Column::FontButton, Qt::AlignTop);
    AddValue(row.fontLabel, row.font, QStringLiteral("Font"), Column::FontName);
    AddValue(row.sizeLabel, row.size, QStringLiteral("Font size"), Column::FontSize);
    if (row.style) {
        Binder().BindBold(box, row.style->bold);
        Binder().BindItalic(box, row.style->italic);
    }
}

void Frame3::AddValue(const char* label, FieldOf<std::string> field, const QString& accessibleName,
                      int column) {
    auto* value = new ValueLabel(label, Body());
    Binder().Bind(*value, field);
    value->setAccessibleName(accessibleName);
    value->setFixedWidth(column == Column::FontName ? FontNameWidth : FontSizeWidth);
    grid_->addWidget(value, line_, column, Qt::AlignTop);
}

void Frame3::AddStyleWords() {
    AddValue("Label25", Main<&T::Efekti>, QStringLiteral("Font effects"), Column::FontName);
    AddValue("Label23", Main<&T::Stil>, QStringLiteral("Font style"), Column::FontSize);
    ++line_;
}

void Frame3::AddLogoPicture() {
    auto* field = new PictureField(LogoPicture, Context(), Binder(), Main<&T::Logoslika>, Body());
    connect(field, &PictureField::Changed, this, &Frame3::ShowDocument);
    AddCaption(u"L&ogo picture", *field);
    grid_->addWidget(field, line_, Column::Box, 1, Column::Columns - Column::Box);
    ++line_;
}

void Frame3::AddTransparency() {
    auto* check = new QCheckBox(QStringLiteral("Transparent description backgro&und"), Body());
    check->setObjectName(QStringLiteral("Check16"));
    grid_->addWidget(check, line_, Column::Box, 1, Column::Columns - Column::Box, Qt::AlignLeft);
    Binder().Bind(*check, Main<&T::Opisprovidan>);
    ++line_;
}

void Frame3::ChooseFont(const MainTextRow& row) {
    auto& document = Document();
    MainTexts& texts = document.OsnovniPodaci;
    PickedFont current;
    current.font.name = row.font.In(document);
    current.font.size = row.size.In(document);
    if (row.styleInWords) {
        TakeStyleWords(current.font, texts.Stil, texts.Efekti);
    } else if (row.style) {
        current.font.bold = row.style->bold.In(document);
        current.font.italic = row.style->italic.In(document);
    }
    if (row.fontColor) {
        current.color = row.fontColor->In(document);
    }
    const auto picked = PickFont(*this, current);
    if (!picked) {
        return;
    }
    row.font.In(document) = picked->font.name;
    row.size.In(document) = picked->font.size;
    if (row.styleInWords) {
        texts.Stil = StyleWord(picked->font);
        texts.Efekti = EffectWords(picked->font);
    } else if (row.style) {
        row.style->bold.In(document) = picked->font.bold;
        row.style->italic.In(document) = picked->font.italic;
    }
    if (row.fontColor) {
        row.fontColor->In(document) = picked->color;
    }
    ShowDocument();
}

} // namespace tavmoor
