#include "settings/screens/screen_panel.h"

#include "services/controls/color_box.h"
#include "services/controls/labels.h"
#include "services/controls/picture_button.h"
#include "services/controls/spin_bar.h"
#include "services/controls/text_boxes.h"
#include "services/controls/value_label.h"
#include "services/fields/color_pick_button.h"
#include "services/fields/field_pickers.h"
#include "services/look/theme.h"
#include "services/values/qt_text.h"
#include "settings/screens/screen_panel_description.h"
#include "settings/screens/screen_time.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>

namespace tavmoor {

namespace {

/// The places of text and picture on a screen. The text of an entry is what the project keeps and
/// what runtimes compare, its spelling included.
constexpr std::array Positions{u"Top left",           u"Top right",    u"Top center",
                               u"Botton left",        u"Bottom right", u"Bottom center",
                               u"Centered on window!"};

constexpr int PageStep = 10; // pixels
constexpr int TimeWidth = 48;
constexpr int FontSizeWidth = 56;
constexpr int DimensionsWidth = 300;
constexpr int LineGap = 6;

QHBoxLayout* MakeRow() {
    auto* row = new QHBoxLayout;
    row->setSpacing(theme::Gap);
    return row;
}

QVBoxLayout* MakeLines(QWidget* owner) {
    auto* lines = new QVBoxLayout(owner);
    lines->setSpacing(LineGap);
    return lines;
}

} // namespace

ScreenPanel::ScreenPanel(const ScreenPanelDescription& description, ProgramContext context,
                         QWidget* parent)
    : Panel(context, description.frame, description.heading, parent), description_(description) {
    auto* lines = MakeLines(Body());
    lines->setContentsMargins(0, 0, 0, 0);
    lines->addLayout(MakeSwitches());
    lines->addLayout(MakeTime());
    auto* groups = MakeRow();
    groups->addWidget(MakeTextGroup(), 1);
    auto* right = MakeLines(nullptr);
    right->addWidget(MakePictureGroup());
    right->addStretch(1);
    right->addLayout(MakeColor());
    right->addStretch(1);
    groups->addLayout(right, 1);
    lines->addLayout(groups, 1);
    lines->addWidget(MakeDimensions());
    FieldBinder& binder = Bind(table_);
    // The labels show what their bars spin.
    connect(&binder, &FieldBinder::Stored, this, [this](const QString& control) {
        if (findChild<SpinBar*>(control) != nullptr) {
            ShowDocument();
        }
    });
}

ScreenSpec& ScreenPanel::Screen() const {
    return Document().*description_.screen;
}

void ScreenPanel::Tie(const char* control, FieldForm form, std::string_view key, int value) {
    table_.push_back({control, form, description_.section, key, value});
}

QWidget* ScreenPanel::MakeCheckBox(const NamedText& text, std::string_view key) {
    auto* check = new QCheckBox(QString::fromUtf16(text.text), Body());
    check->setObjectName(QString::fromLatin1(text.control));
    Tie(text.control, FieldForm::Checked, key);
    return check;
}

QLayout* ScreenPanel::MakeSwitches() {
    auto* row = MakeRow();
    row->addWidget(MakeCheckBox(description_.show, "Prikazi"));
    row->addSpacing(theme::Margin);
    row->addWidget(MakeCheckBox(description_.click, description_.clickKey));
    row->addStretch(1);
    return row;
}

QLayout* ScreenPanel::MakeTime() {
    time_ = new TextBox(description_.time.control, Body());
    time_->setFixedWidth(TimeWidth);
    time_->installEventFilter(this);
    Tie(description_.time.control, FieldForm::Text, "Vreme");
    timeUnit_ = new QLabel(QStringLiteral("seconds"), Body());
    timeUnit_->setObjectName(QString::fromLatin1(description_.timeUnit));
    auto* row = MakeRow();
    row->addWidget(MakeCaption(description_.time.text, time_));
    row->addWidget(time_);
    row->addWidget(timeUnit_);
    row->addStretch(1);
    return row;
}

QWidget* ScreenPanel::MakeTextGroup() {
    auto* group = new QGroupBox(QString::fromUtf16(description_.text.text), Body());
    auto* lines = MakeLines(group);
    auto* text = new MemoBox(description_.text.control, group);
    text->setToolTip(QStringLiteral("DoubleClick to set text color more precise..."));
    text->setAccessibleName(group->title());
    Tie(description_.text.control, FieldForm::Text, description_.textKey);
    lines->addWidget(text, 1);
    lines->addLayout(MakeTextRow(*text));
    lines->addLayout(MakeStyleRow());
    lines->addLayout(MakePosition(description_.textPosition, "Polozajteksta"));
    return group;
}

QLayout* ScreenPanel::MakeTextRow(MemoBox& text) {
    auto* color = new ColorPickButton(
        {description_.textColor, "palette", u"", u"Change font color", ButtonLook::Icon}, Context(),
        text, Screen().Bojateksta, Body());
    connect(color, &ColorPickButton::Changed, this, &ScreenPanel::ShowDocument);
    auto* font = new PictureButton(
        {description_.fontButton, "font", u"", u"Set font for the text above", ButtonLook::Icon},
        Body());
    connect(font, &QAbstractButton::clicked, this, &ScreenPanel::ChooseFont);
    auto* name = new ValueLabel(description_.fontName, Body());
    name->setAccessibleName(QStringLiteral("Font"));
    auto* size = new ValueLabel(description_.fontSize, Body());
    size->setAccessibleName(QStringLiteral("Font size"));
    size->setFixedWidth(FontSizeWidth);
    Tie(description_.fontName, FieldForm::Shown, "Font");
    Tie(description_.fontName, FieldForm::TextColor, "Bojateksta");
    Tie(description_.fontSize, FieldForm::Shown, "Fontvelicina");
    auto* row = MakeRow();
    row->addWidget(color);
    row->addWidget(font);
    row->addWidget(name, 1);
    row->addWidget(size);
    return row;
}

QLayout* ScreenPanel::MakeStyleRow() {
    auto* row = MakeRow();
    row->addWidget(MakeCheckBox(description_.bold, "Bold"));
    row->addWidget(MakeCheckBox(description_.italic, "Italic"));
    row->addWidget(MakeCheckBox(description_.underline, "Underline"));
    row->addStretch(1);
    return row;
}

QLayout* ScreenPanel::MakePosition(const NamedText& text, std::string_view key) {
    auto* combo = new QComboBox(Body());
    combo->setObjectName(QString::fromLatin1(text.control));
    for (const char16_t* position : Positions) {
        combo->addItem(QString::fromUtf16(position));
    }
    Tie(text.control, FieldForm::Choice, key);
    auto* row = MakeRow();
    row->addWidget(MakeCaption(text.text, combo));
    row->addWidget(combo, 1);
    return row;
}

QWidget* ScreenPanel::MakePictureGroup() {
    auto* group = new QGroupBox(QStringLiteral("Choose picture"), Body());
    auto* lines = MakeLines(group);
    auto* picture = new PictureField(description_.picture, Context(), Screen().Slika, group);
    connect(picture, &PictureField::Changed, this, &ScreenPanel::ShowDocument);
    Tie(description_.picture.label, FieldForm::Shown, "Slika");
    lines->addWidget(picture);
    lines->addLayout(MakePosition(description_.picturePosition, "Polozajslike"));
    lines->addWidget(MakeShowChoice());
    return group;
}

QWidget* ScreenPanel::MakeShowChoice() {
    auto* group = new QGroupBox(QStringLiteral("Show"), Body());
    auto* row = new QHBoxLayout(group);
    int value = 0;
    for (const NamedText& option : description_.options) {
        auto* button = new QRadioButton(QString::fromUtf16(option.text), group);
        button->setObjectName(QString::fromLatin1(option.control));
        Tie(option.control, FieldForm::Option, "Opcija", ++value);
        row->addWidget(button);
    }
    return group;
}

QLayout* ScreenPanel::MakeColor() {
    auto* area = new ColorBox(description_.color.control, u"", description_.colorTooltip, Body());
    auto* button = new ColorPickButton(
        {description_.colorButton, "palette", u"", description_.colorTooltip, ButtonLook::Icon},
        Context(), *area, Screen().Bojaprozora, Body());
    connect(button, &ColorPickButton::Changed, this, &ScreenPanel::ShowDocument);
    Tie(description_.color.control, FieldForm::Color, "Bojaprozora");
    auto* row = MakeRow();
    row->addWidget(MakeCaption(description_.color.text, area));
    row->addWidget(area);
    row->addWidget(button);
    row->addStretch(1);
    return row;
}

QWidget* ScreenPanel::MakeDimensions() {
    auto* group = new QGroupBox(Body());
    auto* heading = new QLabel(QString::fromUtf16(description_.dimensions.text), group);
    heading->setObjectName(QString::fromLatin1(description_.dimensions.control));
    heading->setWordWrap(true);
    heading->setFixedWidth(DimensionsWidth);
    auto* row = MakeRow();
    row->addWidget(heading);
    AddDimension(*row, description_.height);
    AddDimension(*row, description_.width);
    row->addStretch(1);
    group->setLayout(row);
    return group;
}

void ScreenPanel::AddDimension(QHBoxLayout& row, const ScreenDimension& dimension) {
    auto* bar = new SpinBar(dimension.bar.control, dimension.most, PageStep, Body());
    auto* shown = new ValueLabel(dimension.label, Body());
    shown->setFixedWidth(FontSizeWidth);
    Tie(dimension.bar.control, FieldForm::Number, dimension.key);
    Tie(dimension.label, FieldForm::Shown, dimension.key);
    row.addSpacing(theme::Margin);
    row.addWidget(MakeCaption(dimension.bar.text, bar));
    row.addWidget(shown);
    row.addWidget(bar);
}

void ScreenPanel::ChooseFont() {
    ScreenSpec& screen = Screen();
    const PickedFont current{{.name = screen.Font,
                              .size = screen.Fontvelicina,
                              .bold = screen.Bold,
                              .italic = screen.Italic,
                              .underline = screen.Underline},
                             screen.Bojateksta};
    const auto picked = PickFont(*this, current, "Choose font...");
    if (!picked) {
        return;
    }
    if (!picked->font.name.empty()) {
        screen.Font = picked->font.name;
    }
    screen.Fontvelicina = picked->font.size;
    screen.Bold = picked->font.bold;
    screen.Italic = picked->font.italic;
    screen.Underline = picked->font.underline;
    screen.Bojateksta = picked->color;
    ShowDocument();
}

bool ScreenPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == time_ && event->type() == QEvent::KeyRelease) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool deletes = key->key() == Qt::Key_Backspace || key->key() == Qt::Key_Delete;
        if (!deletes && !key->isAutoRepeat()) {
            CheckTime();
        }
    }
    return Panel::eventFilter(watched, event);
}

void ScreenPanel::CheckTime() {
    const ScreenTime time = CheckScreenTime(FromQString(time_->text()));
    if (time.outOfRange) {
        // Stays for good, so that the limit is known from now on.
        timeUnit_->setText(QStringLiteral("seconds(60 is maximum)"));
    }
    Screen().Vreme = time.text;
    const bool replaced = FromQString(time_->text()) != time.text;
    ShowDocument();
    if (replaced) {
        time_->end(false); // typing and deleting go on behind the number
    }
}

} // namespace tavmoor
