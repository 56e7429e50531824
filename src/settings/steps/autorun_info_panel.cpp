#include "settings/steps/autorun_info_panel.h"

#include "services/controls/picture_button.h"
#include "services/controls/text_boxes.h"
#include "services/controls/value_label.h"
#include "services/fields/color_pick_button.h"
#include "services/fields/field_pickers.h"
#include "services/fields/field_value.h"
#include "services/fields/logo_text_style.h"
#include "services/fields/picture_field.h"
#include "services/look/theme.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

#include <array>

namespace tavmoor {

/// Where the style of a text's font is kept.
enum class StyleKept : std::uint8_t { No, Words, Flags };

/// A text of the panel. All keys stand in MainSection but that of a back colour.
struct MainTextRow {
    const char16_t* caption;
    const char* box;
    std::string_view key;
    bool severalLines = false;
    FieldForm colorForm =
        FieldForm::TextColor; ///< what a double click changes: TextColor or BackColor
    std::string_view colorKey;
    const char* colorButton;
    const char* fontButton;
    const char16_t* fontTooltip;
    const char* fontLabel;
    std::string_view fontKey;
    const char* sizeLabel;
    std::string_view sizeKey;
    StyleKept style = StyleKept::No;
    std::string_view boldKey{};   ///< with StyleKept::Flags
    std::string_view italicKey{}; ///< with StyleKept::Flags
    std::string_view
        fontColorKey{}; ///< the text colour that comes from the font dialog, "" for none
};

namespace {

constexpr std::string_view MainSection = "Osnovni podaci";
constexpr std::string_view BackColorSection = "Izvrsne komande";

constexpr MainTextRow LogoText{.caption = u"Autorun &Logo text",
                               .box = "Text2",
                               .key = "Logotekst",
                               .colorKey = "Logotekstboja",
                               .colorButton = "Text2Color",
                               .fontButton = "Command13",
                               .fontTooltip = u"Set font for the Autorun Logo text",
                               .fontLabel = "Label21",
                               .fontKey = "Font",
                               .sizeLabel = "Label3",
                               .sizeKey = "Velicina",
                               .style = StyleKept::Words};

constexpr MainTextRow MainTitle{.caption = u"Mai&n Autorun title",
                                .box = "Text3",
                                .key = "Glavninaslov",
                                .colorKey = "GlnaslovBoja",
                                .colorButton = "Text3Color",
                                .fontButton = "Command47",
                                .fontTooltip = u"Set font for the Main Autorun title",
                                .fontLabel = "Label6",
                                .fontKey = "GlavninaslovFont",
                                .sizeLabel = "Label7",
                                .sizeKey = "GlnaslovVel"};

constexpr MainTextRow DescriptionTitle{.caption = u"C&D description title",
                                       .box = "Text4",
                                       .key = "GlavniOpisnaslov",
                                       .colorKey = "GlavniOpisnaslovBoja",
                                       .colorButton = "Text4Color",
                                       .fontButton = "Command48",
                                       .fontTooltip = u"Set font for the CD description text",
                                       .fontLabel = "Label45",
                                       .fontKey = "GlavniOpisnaslovFont",
                                       .sizeLabel = "Label4",
                                       .sizeKey = "GlavniOpisnaslovVel",
                                       .style = StyleKept::Flags,
                                       .boldKey = "GlavniOpisnaslovBold",
                                       .italicKey = "GlavniOpisnaslovItalic"};

constexpr MainTextRow Description{.caption = u"Description text, font, bac&kground and fore color",
                                  .box = "Text5",
                                  .key = "GlavniOpis",
                                  .severalLines = true,
                                  .colorForm = FieldForm::BackColor,
                                  .colorKey = "Boja pozadine",
                                  .colorButton = "Text5Color",
                                  .fontButton = "Command49",
                                  .fontTooltip = u"Set font for the description text",
                                  .fontLabel = "Label8",
                                  .fontKey = "GlavniOpisFont",
                                  .sizeLabel = "Label10",
                                  .sizeKey = "GlavniOpisVel",
                                  .style = StyleKept::Flags,
                                  .boldKey = "GlavniOpisBold",
                                  .italicKey = "GlavniOpisItalic",
                                  .fontColorKey = "GlavniOpisBoja"};

constexpr MainTextRow VerticalText{.caption = u"&Vertical text",
                                   .box = "Text31",
                                   .key = "Vertekst",
                                   .colorKey = "Vertfontboja",
                                   .colorButton = "Text31Color",
                                   .fontButton = "Command25",
                                   .fontTooltip = u"Set font for the vertical text",
                                   .fontLabel = "Label77",
                                   .fontKey = "Vertfont",
                                   .sizeLabel = "Label86",
                                   .sizeKey = "Vertfontvelicina"};

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
    : Panel(context, "Frame3", u"Autorun Info", parent), grid_(new QGridLayout(Body())) {
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setHorizontalSpacing(theme::Gap);
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
    Bind(table_);
}

std::string& Frame3::Text(std::string_view key) const {
    return FieldValue<std::string>(Document(), MainSection, key);
}

void Frame3::AddCaption(const char16_t* text, QWidget& buddy) {
    auto* label = new QLabel(QString::fromUtf16(text), Body());
    label->setWordWrap(true);
    label->setFixedWidth(CaptionWidth);
    label->setBuddy(&buddy);
    // Beside a box of several lines, the caption stands at its first one.
    grid_->addWidget(label, line_, Column::Caption,
                     qobject_cast<MemoBox*>(&buddy) != nullptr ? Qt::AlignTop : Qt::AlignVCenter);
}

void Frame3::AddTaskBarTitle() {
    auto* box = new TextBox("Text1", Body());
    AddCaption(u"&Autorun title(program title visible in a taskbar)", *box);
    grid_->addWidget(box, line_, Column::Box, 1, Column::Columns - Column::Box);
    table_.push_back({"Text1", FieldForm::Text, MainSection, "Tasknaslov"});
    ++line_;
}

void Frame3::AddColumnHeads() {
    const auto addHead = [this](const char* name, const char16_t* text, int column, int span) {
        auto* label = new QLabel(QString::fromUtf16(text), Body());
        label->setObjectName(QString::fromLatin1(name));
        label->setProperty("look", QStringLiteral("note"));
        label->setFont(theme::NoteFont());
        grid_->addWidget(label, line_, column, 1, span);
    };
    addHead("Label20", u"Double click on the text box to change color", Column::Caption,
            Column::FontButton - Column::Caption);
    addHead("Label5", u"Font settings", Column::FontButton, Column::Columns - Column::FontButton);
    ++line_;
}

void Frame3::AddText(const MainTextRow& row) {
    QWidget* box = row.severalLines ? static_cast<QWidget*>(new MemoBox(row.box, Body()))
                                    : new TextBox(row.box, Body());
    AddCaption(row.caption, *box);
    grid_->addWidget(box, line_, Column::Box);
    grid_->setRowStretch(line_, row.severalLines ? 1 : 0);
    table_.push_back({row.box, FieldForm::Text, MainSection, row.key});
    AddColor(row, *box);
    AddFont(row);
    ++line_;
}

void Frame3::AddColor(const MainTextRow& row, QWidget& box) {
    const bool back = row.colorForm == FieldForm::BackColor;
    const std::string_view section = back ? BackColorSection : MainSection;
    box.setToolTip(back ? QStringLiteral("Double click to change backcolor")
                        : QStringLiteral("Double click to change font color"));
    auto* button = new ColorPickButton(
        {row.colorButton, "palette", u"", back ? u"Change back color" : u"Change font color",
         ButtonLook::Icon},
        Context(), box, FieldValue<ColorValue>(Document(), section, row.colorKey), Body());
    connect(button, &ColorPickButton::Changed, this, &Frame3::ShowDocument);
    grid_->addWidget(button, line_, Column::Color, Qt::AlignTop);
    table_.push_back({row.box, row.colorForm, section, row.colorKey});
    if (!row.fontColorKey.empty()) {
        table_.push_back({row.box, FieldForm::TextColor, MainSection, row.fontColorKey});
    }
}

void Frame3::AddFont(const MainTextRow& row) {
    auto* button =
        new PictureButton({row.fontButton, "font", u"", row.fontTooltip, ButtonLook::Icon}, Body());
    connect(button, &QAbstractButton::clicked, this, [this, &row] { ChooseFont(row); });
    grid_->addWidget(button, line_, Column::FontButton, Qt::AlignTop);
    AddValue(row.fontLabel, row.fontKey, QStringLiteral("Font"), Column::FontName);
    AddValue(row.sizeLabel, row.sizeKey, QStringLiteral("Font size"), Column::FontSize);
    if (row.style == StyleKept::Flags) {
        table_.push_back({row.box, FieldForm::BoldFont, MainSection, row.boldKey});
        table_.push_back({row.box, FieldForm::ItalicFont, MainSection, row.italicKey});
    }
}

void Frame3::AddValue(const char* label, std::string_view key, const QString& accessibleName,
                      int column) {
    auto* value = new ValueLabel(label, Body());
    value->setAccessibleName(accessibleName);
    value->setFixedWidth(column == Column::FontName ? FontNameWidth : FontSizeWidth);
    grid_->addWidget(value, line_, column, Qt::AlignTop);
    table_.push_back({label, FieldForm::Shown, MainSection, key});
}

void Frame3::AddStyleWords() {
    AddValue("Label25", "Efekti", QStringLiteral("Font effects"), Column::FontName);
    AddValue("Label23", "Stil", QStringLiteral("Font style"), Column::FontSize);
    ++line_;
}

void Frame3::AddLogoPicture() {
    auto* field = new PictureField(LogoPicture, Context(), Text("Logoslika"), Body());
    connect(field, &PictureField::Changed, this, &Frame3::ShowDocument);
    AddCaption(u"L&ogo picture", *field);
    grid_->addWidget(field, line_, Column::Box, 1, Column::Columns - Column::Box);
    table_.push_back({LogoPicture.label, FieldForm::Shown, MainSection, "Logoslika"});
    ++line_;
}

void Frame3::AddTransparency() {
    auto* check = new QCheckBox(QStringLiteral("Transparent description backgro&und"), Body());
    check->setObjectName(QStringLiteral("Check16"));
    grid_->addWidget(check, line_, Column::Box, 1, Column::Columns - Column::Box, Qt::AlignLeft);
    table_.push_back({"Check16", FieldForm::Checked, MainSection, "Opis providan"});
    ++line_;
}

void Frame3::ChooseFont(const MainTextRow& row) {
    auto& document = Document();
    PickedFont current;
    current.font.name = Text(row.fontKey);
    current.font.size = Text(row.sizeKey);
    if (row.style == StyleKept::Words) {
        TakeStyleWords(current.font, Text("Stil"), Text("Efekti"));
    } else if (row.style == StyleKept::Flags) {
        current.font.bold = FieldValue<bool>(document, MainSection, row.boldKey);
        current.font.italic = FieldValue<bool>(document, MainSection, row.italicKey);
    }
    if (!row.fontColorKey.empty()) {
        current.color = FieldValue<ColorValue>(document, MainSection, row.fontColorKey);
    }
    const auto picked = PickFont(*this, current);
    if (!picked) {
        return;
    }
    Text(row.fontKey) = picked->font.name;
    Text(row.sizeKey) = picked->font.size;
    if (row.style == StyleKept::Words) {
        Text("Stil") = StyleWord(picked->font);
        Text("Efekti") = EffectWords(picked->font);
    } else if (row.style == StyleKept::Flags) {
        FieldValue<bool>(document, MainSection, row.boldKey) = picked->font.bold;
        FieldValue<bool>(document, MainSection, row.italicKey) = picked->font.italic;
    }
    if (!row.fontColorKey.empty()) {
        FieldValue<ColorValue>(document, MainSection, row.fontColorKey) = picked->color;
    }
    ShowDocument();
}

} // namespace tavmoor
