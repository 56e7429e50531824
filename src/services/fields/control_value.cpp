#include "services/fields/control_value.h"

#include "core/text/number_text.h"
#include "services/controls/color_box.h"
#include "services/controls/path_box.h"
#include "services/controls/text_boxes.h"
#include "services/controls/value_label.h"
#include "services/look/theme.h"
#include "services/values/color_value.h"
#include "services/values/font_spec.h"
#include "services/values/qt_text.h"

#include <QAbstractSlider>
#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>
#include <QSpinBox>

#include <limits>
#include <optional>

namespace tavmoor {

namespace {

/// The number of a field; texts of numbers (colours) count as well.
double NumberOf(ConstValueRef value) {
    return std::visit(
        [](const auto* field) -> double {
            if constexpr (std::is_same_v<decltype(field), const std::string*>) {
                return ParseNumber(*field).value_or(0);
            } else {
                return static_cast<double>(*field);
            }
        },
        value);
}

/// The same as a whole number; texts may name larger ones.
std::int32_t WholeNumberOf(ConstValueRef value) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(qBound<double>(Limits::min(), NumberOf(value), Limits::max()));
}

QString TextOf(ConstValueRef value) {
    const auto* const* text = std::get_if<const std::string*>(&value);
    return text != nullptr ? ToQString(**text) : ToQString(FormatNumber(NumberOf(value)));
}

void SetNumber(ValueRef value, std::int32_t number) {
    std::visit(
        [number](auto* field) {
            using Field = std::remove_pointer_t<decltype(field)>;
            if constexpr (std::is_same_v<Field, std::string>) {
                field->clear();
                AppendInteger(*field, number);
            } else if constexpr (std::is_same_v<Field, bool>) {
                *field = number != 0;
            } else {
                *field = static_cast<Field>(number);
            }
        },
        value);
}

void SetText(ValueRef value, const QString& text) {
    if (auto* const* field = std::get_if<std::string*>(&value)) {
        **field = FromQString(text);
    }
}

/// A dark back for a text that could hardly be read on the usual white.
QString BackFor(const QString& textColor) {
    constexpr int Pale = 170;
    return qGray(QColor(textColor).rgb()) > Pale ? theme::QuietText.name() : QString();
}

/// A text colour or back colour in the control's own style sheet, beside the other one.
void SetStyleColor(QWidget& control, const char* property, ColorValue color) {
    control.setProperty(property, ToQColor(color).name());
    QString sheet;
    for (const auto* name : {"color", "background-color"}) {
        QString given = control.property(name).toString();
        if (given.isEmpty()) {
            given = BackFor(control.property("color").toString());
        }
        if (!given.isEmpty()) {
            sheet += QStringLiteral("%1: %2;").arg(QLatin1String(name), given);
        }
    }
    sheet = QString::fromLatin1(control.metaObject()->className())
                .replace(QLatin1String("::"), QLatin1String("--")) +
            QLatin1String(" {") + sheet + QLatin1String("}");
    if (control.styleSheet() != sheet) {
        // A first style sheet of its own would give the control the application's font.
        const QFont font = control.font();
        control.setStyleSheet(sheet);
        control.setFont(font);
    }
}

void ShowText(QWidget& control, const QString& text) {
    if (auto* memo = qobject_cast<MemoBox*>(&control)) {
        memo->SetProjectText(text);
    } else if (auto* box = qobject_cast<QLineEdit*>(&control); box != nullptr) {
        if (box->text() != text) {
            box->setText(text);
            if (qobject_cast<PathBox*>(box) == nullptr) {
                box->setCursorPosition(0); // a long text shows its beginning, a path its name
            }
        }
    }
}

/// Nothing for what the document cannot say.
std::optional<QString> TypedText(const QWidget& control) {
    if (const auto* memo = qobject_cast<const MemoBox*>(&control)) {
        return memo->ProjectText();
    }
    if (const auto* path = qobject_cast<const PathBox*>(&control)) {
        return path->DocumentForm();
    }
    const auto* box = qobject_cast<const QLineEdit*>(&control);
    return box != nullptr ? box->text() : QString();
}

void ShowChoice(QComboBox& box, const QString& text) {
    // A text that the list does not have stays the field's value and is shown as such.
    box.setPlaceholderText(text);
    box.setCurrentIndex(box.findText(text, Qt::MatchExactly));
}

QString ChosenText(const QComboBox& box) {
    return box.currentIndex() >= 0 ? box.currentText() : box.placeholderText();
}

void ShowNumber(QWidget& control, int number) {
    if (auto* spin = qobject_cast<QSpinBox*>(&control)) {
        spin->setValue(number);
    } else if (auto* slider = qobject_cast<QAbstractSlider*>(&control)) {
        slider->setValue(number);
    }
}

int GivenNumber(const QWidget& control) {
    if (const auto* spin = qobject_cast<const QSpinBox*>(&control)) {
        return spin->value();
    }
    const auto* slider = qobject_cast<const QAbstractSlider*>(&control);
    return slider != nullptr ? slider->value() : 0;
}

void ShowFont(QWidget& control, FieldForm form, ConstValueRef value) {
    QFont font = control.font();
    switch (form) {
    case FieldForm::BoldFont:
        font.setBold(NumberOf(value) != 0);
        break;
    case FieldForm::ItalicFont:
        font.setItalic(NumberOf(value) != 0);
        break;
    case FieldForm::FontName:
        font.setFamily(TextOf(value));
        break;
    default:
        font.setPointSize(FontPoints(FromQString(TextOf(value))));
        break;
    }
    control.setFont(font);
}

void ShowOption(QRadioButton& button, bool chosen) {
    // In a group of exclusive buttons, only the chosen one is set: none may be chosen.
    button.setAutoExclusive(false);
    button.setChecked(chosen);
    button.setAutoExclusive(true);
}

} // namespace

void ShowInControl(QWidget& control, const FieldBinding& row, ConstValueRef value) {
    const std::int32_t number = WholeNumberOf(value);
    switch (row.form) {
    case FieldForm::Text:
        ShowText(control, TextOf(value));
        break;
    case FieldForm::Shown:
        qobject_cast<ValueLabel*>(&control)->SetFullText(TextOf(value));
        break;
    case FieldForm::Checked:
        qobject_cast<QCheckBox*>(&control)->setChecked(number != 0);
        break;
    case FieldForm::Choice:
        ShowChoice(*qobject_cast<QComboBox*>(&control), TextOf(value));
        break;
    case FieldForm::Number:
        ShowNumber(control, number);
        break;
    case FieldForm::Option:
        ShowOption(*qobject_cast<QRadioButton*>(&control), number == row.value);
        break;
    case FieldForm::Color:
        qobject_cast<ColorBox*>(&control)->SetColor(number);
        break;
    case FieldForm::TextColor:
        SetStyleColor(control, "color", number);
        break;
    case FieldForm::BackColor:
        SetStyleColor(control, "background-color", number);
        break;
    case FieldForm::BoldFont:
    case FieldForm::ItalicFont:
    case FieldForm::FontName:
    case FieldForm::FontSize:
        ShowFont(control, row.form, value);
        break;
    }
}

void TakeFromControl(const QWidget& control, const FieldBinding& row, ValueRef value) {
    switch (row.form) {
    case FieldForm::Text:
        if (const auto text = TypedText(control)) {
            SetText(value, *text);
        }
        break;
    case FieldForm::Checked:
        SetNumber(value, qobject_cast<const QCheckBox*>(&control)->isChecked() ? 1 : 0);
        break;
    case FieldForm::Choice:
        SetText(value, ChosenText(*qobject_cast<const QComboBox*>(&control)));
        break;
    case FieldForm::Number:
        SetNumber(value, GivenNumber(control));
        break;
    case FieldForm::Option:
        if (qobject_cast<const QRadioButton*>(&control)->isChecked()) {
            SetNumber(value, row.value);
        }
        break;
    case FieldForm::Color:
        SetNumber(value, qobject_cast<const ColorBox*>(&control)->Color());
        break;
    default:
        break; // chosen elsewhere
    }
}

void WhenEdited(QWidget& control, FieldForm form, QObject* receiver, std::function<void()> edited) {
    const auto call = [edited = std::move(edited)] { edited(); };
    switch (form) {
    case FieldForm::Text:
        if (auto* memo = qobject_cast<MemoBox*>(&control)) {
            QObject::connect(memo, &MemoBox::Edited, receiver, call);
        } else {
            QObject::connect(qobject_cast<QLineEdit*>(&control), &QLineEdit::textEdited, receiver,
                             call);
        }
        break;
    case FieldForm::Checked:
        QObject::connect(qobject_cast<QCheckBox*>(&control), &QCheckBox::toggled, receiver, call);
        break;
    case FieldForm::Choice:
        QObject::connect(qobject_cast<QComboBox*>(&control), &QComboBox::currentIndexChanged,
                         receiver, call);
        break;
    case FieldForm::Number:
        if (auto* spin = qobject_cast<QSpinBox*>(&control)) {
            QObject::connect(spin, &QSpinBox::valueChanged, receiver, call);
        } else {
            QObject::connect(qobject_cast<QAbstractSlider*>(&control),
                             &QAbstractSlider::valueChanged, receiver, call);
        }
        break;
    case FieldForm::Option:
        QObject::connect(qobject_cast<QRadioButton*>(&control), &QRadioButton::toggled, receiver,
                         call);
        break;
    default:
        break; // chosen elsewhere
    }
}

} // namespace tavmoor
