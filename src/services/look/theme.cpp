#include "services/look/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QVariant>
#include <QWidget>

namespace tavmoor::theme {

namespace {

constexpr int BasePixels = 13;
constexpr int HeadingPixels = 16;
constexpr int NotePixels = 12;

QFont FontOf(int pixels, QFont::Weight weight) {
    QFont font = QApplication::font();
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

QPalette ProgramPalette() {
    QPalette palette;
    palette.setColor(QPalette::Window, WindowBack);
    palette.setColor(QPalette::WindowText, Text);
    palette.setColor(QPalette::Base, Surface);
    palette.setColor(QPalette::AlternateBase, WindowBack);
    palette.setColor(QPalette::Text, Text);
    palette.setColor(QPalette::Button, Surface);
    palette.setColor(QPalette::ButtonText, Text);
    palette.setColor(QPalette::Highlight, Accent);
    palette.setColor(QPalette::HighlightedText, Surface);
    palette.setColor(QPalette::PlaceholderText, DisabledText);
    palette.setColor(QPalette::ToolTipBase, Surface);
    palette.setColor(QPalette::ToolTipText, Text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, DisabledText);
    }
    return palette;
}

/// The style sheet with "@Name" for colours.
QString ProgramSheet() {
    return QStringLiteral(R"(
QPushButton { background: @Surface; border: 1px solid @Border; border-radius: 5px;
    padding: 4px 12px; }
QPushButton:hover { background: @Hover; border-color: @Accent; }
QPushButton:pressed { background: @AccentPale; }
QPushButton:focus { border: 2px solid @Accent; padding: 3px 11px; }
QPushButton:disabled { color: @DisabledText; background: @WindowBack; }
QPushButton[look="icon"] { padding: 2px; min-width: 24px; min-height: 22px; }
QPushButton[look="icon"]:focus { padding: 1px; }
QPushButton[look="primary"] { background: @Accent; border-color: @Accent; color: @Surface; }
QPushButton[look="primary"]:hover { background: @AccentDark; }
QPushButton[look="primary"]:focus { border: 2px solid @TitleBack; }
QPushButton[look="primary"]:disabled { background: @Border; border-color: @Border; }
QPushButton[look="navigation"] { text-align: left; padding: 0px 8px; }
QPushButton[look="navigation"]:focus { padding: 0px 7px; }
QPushButton[look="navigation"]:checked { background: @AccentPale; border: 2px solid @Accent;
    padding: 0px 7px; }
QPushButton[look="link"] { background: transparent; border: 1px solid transparent;
    color: @AccentDark; text-align: left; padding: 3px 6px; }
QPushButton[look="link"]:hover { background: @Hover; }
QPushButton[look="link"]:focus { border: 1px solid @Accent; }
QPushButton[look="link"]:disabled { color: @DisabledText; }
QLineEdit, QPlainTextEdit, QTextEdit, QTextBrowser, QComboBox, QSpinBox, QListWidget {
    background: @Surface; border: 1px solid @Border; border-radius: 4px; padding: 2px 5px;
    selection-background-color: @Accent; }
QLineEdit:focus, QPlainTextEdit:focus, QTextEdit:focus, QTextBrowser:focus, QComboBox:focus,
QSpinBox:focus, QListWidget:focus { border: 2px solid @Accent; padding: 1px 4px; }
QLineEdit[refused="true"], QPlainTextEdit[refused="true"] { border: 2px solid @Refused;
    padding: 1px 4px; }
QLineEdit:disabled, QPlainTextEdit:disabled, QComboBox:disabled, QListWidget:disabled {
    background: @WindowBack; color: @DisabledText; }
QListWidget:disabled { selection-background-color: @Border; selection-color: @QuietText; }
QLabel[look="value"] { background: @Surface; border: 1px solid @Border; border-radius: 4px;
    padding: 2px 5px; }
QLabel[look="sample"] { border: 1px solid @Border; padding: 4px 12px; }
QLabel[look="note"] { color: @QuietText; }
QLabel[refused="true"] { border: 2px solid @Refused; padding: 1px 4px; color: @Refused; }
QProgressBar { background: @Surface; border: 1px solid @Border; border-radius: 4px;
    min-height: 20px; text-align: center; }
QProgressBar::chunk { background: @AccentPale; border-right: 2px solid @Accent; }
QGroupBox { border: 1px solid @Border; border-radius: 5px; margin-top: 9px; padding-top: 6px; }
QGroupBox::title { subcontrol-origin: margin; left: 9px; padding: 0px 4px; color: @QuietText; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox::down-arrow { image: url(:/artwork/chevron_down.svg); width: 12px; height: 12px; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QMessageBox QPushButton { min-width: 64px; }
QToolTip { background: @Surface; color: @Text; border: 1px solid @Border; padding: 3px; }
)");
}

QString WithColors(QString sheet) {
    // Longer names come before those that they begin with.
    const std::pair<QLatin1String, QColor> names[] = {
        {QLatin1String("@WindowBack"), WindowBack},
        {QLatin1String("@Surface"), Surface},
        {QLatin1String("@TitleBack"), TitleBack},
        {QLatin1String("@Text"), Text},
        {QLatin1String("@QuietText"), QuietText},
        {QLatin1String("@Border"), Border},
        {QLatin1String("@AccentDark"), AccentDark},
        {QLatin1String("@AccentPale"), AccentPale},
        {QLatin1String("@Accent"), Accent},
        {QLatin1String("@Hover"), Hover},
        {QLatin1String("@DisabledText"), DisabledText},
        {QLatin1String("@Refused"), Refused},
    };
    for (const auto& [name, color] : names) {
        sheet.replace(name, color.name());
    }
    return sheet;
}

} // namespace

QFont BaseFont() {
    return FontOf(BasePixels, QFont::Normal);
}

QFont HeadingFont() {
    return FontOf(HeadingPixels, QFont::DemiBold);
}

QFont NoteFont() {
    return FontOf(NotePixels, QFont::Normal);
}

void Apply(QApplication& application) {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(ProgramPalette());
    QApplication::setFont(BaseFont());
    application.setStyleSheet(WithColors(ProgramSheet()));
}

void MarkRefused(QWidget& control, bool refused) {
    constexpr const char* Property = "refused";
    if (control.property(Property).toBool() == refused) {
        return;
    }
    control.setProperty(Property, refused);
    control.style()->unpolish(&control);
    control.style()->polish(&control);
}

} // namespace tavmoor::theme
