#include "settings/screens/screen_panel.h"

#include "services/controls/color_box.h"
#include "services/controls/labels.h"
#include "services/controls/layouts.h"
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
#include <QKeyEvent>
#include <QRadioButton>

namespace tavmoor {

namespace {

constexpr int PageStep = 10; // pixels
constexpr int TimeWidth = 48;
constexpr int FontSizeWidth = 56;
constexpr int DimensionsWidth = 300;
constexpr int LineGap = 6;

/// The lines of a group, within its frame.
QVBoxLayout* MakeGroupLines(QGroupBox* group) {
    auto* lines = new QVBoxLayout(group);
    lines->setSpacing(LineGap);
    return lines;
}

} // namespace

ScreenPanel::ScreenPanel(const ScreenPanelDescription& description, ProgramContext context,
                         QWidget* parent)
    : Panel(context, description.frame, description.heading, parent), description_(description),
      fields_(description.fields) {
    auto* lines = MakeColumn(Body(), LineGap);
    lines->addLayout(MakeSwitches());
    lines->addLayout(MakeTime());
    auto* groups = MakeRow();
    groups->addWidget(MakeTextGroup(), 1);
    auto* right = MakeColumn(nullptr, LineGap);
    right->addWidget(MakePictureGroup());
    right->addStretch(1);
    right->addLayout(MakeColor());
    right->addStretch(1);
    groups->addLayout(right, 1);
    lines->addLayout(groups, 1);
    lines->addWidget(MakeDimensions());
    // The labels show what their bars spin.
    connect(&Binder(), &FieldBinder::Stored, this, [this](QWidget* control) {
        if (qobject_cast<SpinBar*>(control) != nullptr) {
            ShowDocument();
        }
    });
}

QWidget* ScreenPanel::MakeCheckBox(const NamedText& text, FieldOf<bool> field) {
    auto* check = new QCheckBox(QString::fromUtf16(text.text), Body());
    check->setObjectName(QString::fromLatin1(text.control));
    Binder().Bind(*check, field);
    return check;
}

QLayout* ScreenPanel::MakeSwitches() {
    auto* row = MakeRow();
    row->addWidget(MakeCheckBox(description_.show, fields_.shown));
    row->addSpacing(theme::Margin);
    row->addWidget(MakeCheckBox(description_.click, fields_.clickThrough));
    row->addStretch(1);
    return row;
}

QLayout* ScreenPanel::MakeTime() {
    time_ = new TextBox(description_.time.control, Body());
    time_->setFixedWidth(TimeWidth);
    time_->installEventFilter(this);
    Binder().Bind(*time_, fields_.time);
    timeUnit_ = MakeLabel(description_.timeUnit, u"seconds", Body());
    auto* row = MakeRow();
    row->addWidget(MakeCaption(description_.time.text, time_));
    row->addWidget(time_);
    row->addWidget(timeUnit_);
    row->addStretch(1);
    return row;
}

QWidget* ScreenPanel::MakeTextGroup() {
    auto* group = new QGroupBox(QString::fromUtf16(description_.text.text), Body());
    auto* lines = MakeGroupLines(group);
    auto* text = new MemoBox(description_.text.control, group);
    text->setToolTip(QStringLiteral("DoubleClick to set text color more precise..."));
    text->setAccessibleName(group->title());
    Binder().Bind(*text, fields_.text);
    lines->addWidget(text, 1);
    lines->addLayout(MakeTextRow(*text));
    lines->addLayout(MakeStyleRow());
    lines->addLayout(MakePosition(description_.textPosition, fields_.textPosition));
    return group;
}

QLayout* ScreenPanel::MakeTextRow(MemoBox& text) {
    auto* color = new ColorPickButton(
        {description_.textColor, "palette", u"", u"Change font color", ButtonLook::Icon}, Context(),
        text, fields_.textColor.In(Document()), Body());
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
    Binder().Bind(*name, fields_.font);
    Binder().BindTextColor(*name, fields_.textColor);
    Binder().Bind(*size, fields_.fontSize);
    auto* row = MakeRow();
    row->addWidget(color);
    row->addWidget(font);
    row->addWidget(name, 1);
    row->addWidget(size);
    return row;
}

QLayout* ScreenPanel::MakeStyleRow() {
    auto* row = MakeRow();
    row->addWidget(MakeCheckBox(description_.bold, fields_.bold));
    row->addWidget(MakeCheckBox(description_.italic, fields_.italic));
    row->addWidget(MakeCheckBox(description_.underline, fields_.underline));
    row->addStretch(1);
    return row;
}

QLayout* ScreenPanel::MakePosition(const NamedText& text, FieldOf<std::string> field) {
    auto* combo = new QComboBox(Body());
    combo->setObjectName(QString::fromLatin1(text.control));
    for (const std::string_view place : words::ScreenPlaces) {
        combo->addItem(ToQString(place));
    }
    Binder().Bind(*combo, field);
    auto* row = MakeRow();
    row->addWidget(MakeCaption(text.text, combo));
    row->addWidget(combo, 1);
    return row;
}

QWidget* ScreenPanel::MakePictureGroup() {
    auto* group = new QGroupBox(QStringLiteral("Choose picture"), Body());
    auto* lines = MakeGroupLines(group);
    auto* picture =
        new PictureField(description_.picture, Context(), Binder(), fields_.picture, group);
    connect(picture, &PictureField::Changed, this, &ScreenPanel::ShowDocument);
    lines->addWidget(picture);
    lines->addLayout(MakePosition(description_.picturePosition, fields_.picturePosition));
    lines->addWidget(MakeShowChoice());
    return group;
}

QWidget* ScreenPanel::MakeShowChoice() {
    auto* group = new QGroupBox(QStringLiteral("Show"), Body());
    auto* row = new QHBoxLayout(group);
    std::int16_t value = 0;
    for (const NamedText& option : description_.options) {
        auto* button = new QRadioButton(QString::fromUtf16(option.text), group);
        button->setObjectName(QString::fromLatin1(option.control));
        Binder().BindOption(*button, fields_.option, ++value);
        row->addWidget(button);
    }
    return group;
}

QLayout* ScreenPanel::MakeColor() {
    auto* area = new ColorBox(description_.color.control, u"", description_.colorTooltip, Body());
    Binder().Bind(*area, fields_.backColor);
    auto* button = new ColorPickButton(
        {description_.colorButton, "palette", u"", description_.colorTooltip, ButtonLook::Icon},
        Context(), *area, fields_.backColor.In(Document()), Body());
    connect(button, &ColorPickButton::Changed, this, &ScreenPanel::ShowDocument);
    auto* row = MakeRow();
    row->addWidget(MakeCaption(description_.color.text, area));
    row->addWidget(area);
    row->addWidget(button);
    row->addStretch(1);
    return row;
}

QWidget* ScreenPanel::MakeDimensions() {
    auto* group = new QGroupBox(Body());
    auto* heading = MakeParagraph(description_.dimensions.control,
                                  QString::fromUtf16(description_.dimensions.text), group);
    heading->setFixedWidth(DimensionsWidth);
    auto* row = new QHBoxLayout(group);
    row->setSpacing(theme::Gap);
    row->addWidget(heading);
    AddDimension(*row, description_.height, fields_.height);
    AddDimension(*row, description_.width, fields_.width);
    row->addStretch(1);
    return group;
}

void ScreenPanel::AddDimension(QHBoxLayout& row, const ScreenDimension& dimension,
                               FieldOf<std::int16_t> field) {
    auto* bar = new SpinBar(dimension.bar.control, dimension.most, PageStep, Body());
    auto* shown = new ValueLabel(dimension.label, Body());
    shown->setFixedWidth(FontSizeWidth);
    Binder().Bind(*bar, field);
    Binder().Bind(*shown, field);
    row.addSpacing(theme::Margin);
    row.addWidget(MakeCaption(dimension.bar.text, bar));
    row.addWidget(shown);
    row.addWidget(bar);
}

void ScreenPanel::ChooseFont() {
    ProjectDocument& document = Document();
    const PickedFont current{{.name = fields_.font.In(document),
                              .size = fields_.fontSize.In(document),
                              .bold = fields_.bold.In(document),
                              .italic = fields_.italic.In(document),
                              .underline = fields_.underline.In(document)},
                             fields_.textColor.In(document)};
    const auto picked = PickFont(*this, current, "Choose font...");
    if (!picked) {
        return;
    }
    if (!picked->font.name.empty()) {
        fields_.font.In(document) = picked->font.name;
    }
    fields_.fontSize.In(document) = picked->font.size;
    fields_.bold.In(document) = picked->font.bold;
    fields_.italic.In(document) = picked->font.italic;
    fields_.underline.In(document) = picked->font.underline;
    fields_.textColor.In(document) = picked->color;
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
        timeUnit_->setText(QStringLiteral("seconds(%1 is maximum)").arg(MostScreenSeconds));
    }
    fields_.time.In(Document()) = time.text;
    const bool replaced = FromQString(time_->text()) != time.text;
    ShowDocument();
    if (replaced) {
        time_->end(false); // typing and deleting go on behind the number
    }
}

} // namespace tavmoor
