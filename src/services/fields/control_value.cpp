#include "services/fields/control_value.h"

#include "services/controls/text_boxes.h"
#include "services/look/theme.h"
#include "services/values/color_value.h"

#include <QComboBox>
#include <QRadioButton>
#include <QVariant>

namespace tavmoor {

namespace {

/// The style properties, and the names of the control's own properties that keep them.
constexpr const char* TextProperty = "color";
constexpr const char* BackProperty = "background-color";

QString BackFor(const QString& textColor) {
    constexpr int Pale = 170;
    return qGray(QColor(textColor).rgb()) > Pale ? theme::QuietText.name() : QString();
}

void SetStyleColor(QWidget& control, const char* property, ColorValue color) {
    control.setProperty(property, ToQColor(color).name());
    QString sheet;
    for (const char* name : {TextProperty, BackProperty}) {
        QString given = control.property(name).toString();
        if (given.isEmpty()) {
            given = BackFor(control.property(TextProperty).toString());
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

} // namespace

void ShowFromBeginning(TextBox& box, const QString& text) {
    if (box.text() != text) {
        box.setText(text);
        box.setCursorPosition(0);
    }
}

void ShowChoice(QComboBox& box, const QString& text) {
    box.setPlaceholderText(text);
    box.setCurrentIndex(box.findText(text, Qt::MatchExactly));
}

QString ChosenText(const QComboBox& box) {
    return box.currentIndex() >= 0 ? box.currentText() : box.placeholderText();
}

void ShowOption(QRadioButton& button, bool chosen) {
    button.setAutoExclusive(false);
    button.setChecked(chosen);
    button.setAutoExclusive(true);
}

void ShowTextColor(QWidget& control, ColorValue color) {
    SetStyleColor(control, TextProperty, color);
}

void ShowBackColor(QWidget& control, ColorValue color) {
    SetStyleColor(control, BackProperty, color);
}

} // namespace tavmoor
