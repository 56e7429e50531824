#include "services/fields/field_binding.h"

#include "services/controls/color_box.h"
#include "services/controls/path_box.h"
#include "services/controls/text_boxes.h"
#include "services/controls/value_label.h"
#include "services/fields/control_value.h"
#include "services/values/color_value.h"
#include "services/values/font_spec.h"
#include "services/values/qt_text.h"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

namespace tavmoor {

namespace {

// The two forms in which fields have a colour; a text that says none is black.

ColorValue ColorOf(ColorValue field) {
    return field;
}

ColorValue ColorOf(const std::string& field) {
    return ParseColorText(field).value_or(0);
}

void StoreColor(const ColorBox& box, ColorValue& field) {
    field = box.Color();
}

void StoreColor(const ColorBox& box, std::string& field) {
    field = ColorText(box.Color());
}

} // namespace

FieldBinder::FieldBinder(QWidget& window, ProjectDocument& document, Storing storing)
    : QObject(&window), document_(document), storing_(storing) {}

template <typename Control, typename Value, typename ShowIt>
void FieldBinder::AddShown(Control& control, FieldOf<Value> field, ShowIt show) {
    rows_.push_back(
        {&control, [this, &control, field, show] { show(control, field.In(document_)); }, {}});
}

template <typename Control, typename Value, typename ShowIt, typename TakeIt>
auto FieldBinder::AddInput(Control& control, FieldOf<Value> field, ShowIt show, TakeIt take) {
    AddShown(control, field, show);
    rows_.back().store = [this, &control, field, take] { take(control, field.In(document_)); };
    return [this, row = rows_.size() - 1] { Edited(rows_[row]); };
}

void FieldBinder::Bind(TextBox& box, FieldOf<std::string> field) {
    const auto edited = AddInput(
        box, field,
        [](TextBox& to, const std::string& text) { ShowFromBeginning(to, ToQString(text)); },
        [](const TextBox& from, std::string& text) { text = FromQString(from.text()); });
    connect(&box, &QLineEdit::textEdited, this, edited);
}

void FieldBinder::Bind(PathBox& box, FieldOf<std::string> field) {
    const auto edited = AddInput(
        box, field,
        [](PathBox& to, const std::string& path) {
            // The cursor stays behind a new path: its name is what counts.
            if (const QString shown = ToQString(path); to.text() != shown) {
                to.setText(shown);
            }
        },
        [](const PathBox& from, std::string& path) {
            if (const auto form = from.DocumentForm()) {
                path = FromQString(*form);
            }
        });
    connect(&box, &QLineEdit::textEdited, this, edited);
}

void FieldBinder::Bind(MemoBox& box, FieldOf<std::string> field) {
    const auto edited = AddInput(
        box, field,
        [](MemoBox& to, const std::string& text) { to.SetProjectText(ToQString(text)); },
        [](const MemoBox& from, std::string& text) { text = FromQString(from.ProjectText()); });
    connect(&box, &MemoBox::Edited, this, edited);
}

template <typename Value>
void FieldBinder::AddCheck(QCheckBox& box, FieldOf<Value> field) {
    const auto edited = AddInput(
        box, field, [](QCheckBox& to, Value value) { to.setChecked(value != 0); },
        [](const QCheckBox& from, Value& value) { value = static_cast<Value>(from.isChecked()); });
    connect(&box, &QCheckBox::toggled, this, edited);
}

void FieldBinder::Bind(QCheckBox& box, FieldOf<bool> field) {
    AddCheck(box, field);
}

void FieldBinder::Bind(QCheckBox& box, FieldOf<std::int16_t> field) {
    AddCheck(box, field);
}

void FieldBinder::Bind(QComboBox& box, FieldOf<std::string> field) {
    const auto edited = AddInput(
        box, field, [](QComboBox& to, const std::string& text) { ShowChoice(to, ToQString(text)); },
        [](const QComboBox& from, std::string& text) { text = FromQString(ChosenText(from)); });
    connect(&box, &QComboBox::currentIndexChanged, this, edited);
}

void FieldBinder::Bind(QAbstractSlider& slider, FieldOf<std::int16_t> field) {
    const auto edited = AddInput(
        slider, field, [](QAbstractSlider& to, std::int16_t number) { to.setValue(number); },
        [](const QAbstractSlider& from, std::int16_t& number) {
            number = static_cast<std::int16_t>(from.value());
        });
    connect(&slider, &QAbstractSlider::valueChanged, this, edited);
}

template <typename Value>
void FieldBinder::AddOption(QRadioButton& button, FieldOf<Value> field, Value value) {
    const auto edited = AddInput(
        button, field, [value](QRadioButton& to, Value chosen) { ShowOption(to, chosen == value); },
        [value](const QRadioButton& from, Value& chosen) {
            if (from.isChecked()) {
                chosen = value;
            }
        });
    connect(&button, &QRadioButton::toggled, this, edited);
}

void FieldBinder::BindOption(QRadioButton& button, FieldOf<bool> field, bool value) {
    AddOption(button, field, value);
}

void FieldBinder::BindOption(QRadioButton& button, FieldOf<std::int16_t> field,
                             std::int16_t value) {
    AddOption(button, field, value);
}

void FieldBinder::Bind(ValueLabel& label, FieldOf<std::string> field) {
    AddShown(label, field,
             [](ValueLabel& to, const std::string& text) { to.SetFullText(ToQString(text)); });
}

void FieldBinder::Bind(ValueLabel& label, FieldOf<std::int16_t> field) {
    AddShown(label, field,
             [](ValueLabel& to, std::int16_t number) { to.SetFullText(QString::number(number)); });
}

template <typename Value>
void FieldBinder::AddColor(ColorBox& box, FieldOf<Value> field) {
    // A colour is not given in the box, but a window with a confirm command sets it there.
    AddInput(
        box, field, [](ColorBox& to, const Value& color) { to.SetColor(ColorOf(color)); },
        [](const ColorBox& from, Value& color) { StoreColor(from, color); });
}

void FieldBinder::Bind(ColorBox& box, FieldOf<ColorValue> field) {
    AddColor(box, field);
}

void FieldBinder::Bind(ColorBox& box, FieldOf<std::string> field) {
    AddColor(box, field);
}

void FieldBinder::BindTextColor(QWidget& control, FieldOf<ColorValue> field) {
    AddShown(control, field, ShowTextColor);
}

void FieldBinder::BindTextColor(QWidget& control, FieldOf<std::string> field) {
    AddShown(control, field,
             [](QWidget& to, const std::string& color) { ShowTextColor(to, ColorOf(color)); });
}

void FieldBinder::BindBackColor(QWidget& control, FieldOf<ColorValue> field) {
    AddShown(control, field, ShowBackColor);
}

void FieldBinder::BindBackColor(QWidget& control, FieldOf<std::string> field) {
    AddShown(control, field,
             [](QWidget& to, const std::string& color) { ShowBackColor(to, ColorOf(color)); });
}

template <typename Value, typename Change>
void FieldBinder::AddFont(QWidget& control, FieldOf<Value> field, Change change) {
    AddShown(control, field, [change](QWidget& to, const Value& value) {
        QFont font = to.font();
        change(font, value);
        to.setFont(font);
    });
}

void FieldBinder::BindBold(QWidget& control, FieldOf<bool> field) {
    AddFont(control, field, [](QFont& font, bool bold) { font.setBold(bold); });
}

void FieldBinder::BindItalic(QWidget& control, FieldOf<bool> field) {
    AddFont(control, field, [](QFont& font, bool italic) { font.setItalic(italic); });
}

void FieldBinder::BindFontName(QWidget& control, FieldOf<std::string> field) {
    AddFont(control, field,
            [](QFont& font, const std::string& name) { font.setFamily(ToQString(name)); });
}

void FieldBinder::BindFontSize(QWidget& control, FieldOf<std::string> field) {
    AddFont(control, field,
            [](QFont& font, const std::string& size) { font.setPointSize(FontPoints(size)); });
}

void FieldBinder::Edited(const Bound& bound) {
    if (showing_ || storing_ == Storing::OnConfirm) {
        return;
    }
    bound.store();
    Q_EMIT Stored(bound.control);
}

void FieldBinder::Show() {
    showing_ = true;
    for (const Bound& bound : rows_) {
        bound.show();
    }
    showing_ = false;
}

void FieldBinder::Store() {
    for (const Bound& bound : rows_) {
        if (bound.store) {
            bound.store();
        }
    }
}

} // namespace tavmoor
