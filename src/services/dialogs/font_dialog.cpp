#include "services/dialogs/font_dialog.h"

#include "services/dialogs/custom_colors.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <cstdlib>

namespace tavmoor {

namespace {

constexpr QSize SwatchSize(32, 16);

/// The style of a font's family that comes nearest to its weight and slope; the shortest name of
/// several, which leaves out condensed ones. By itself the dialog knows no other name than "Normal"
/// for the usual style, and takes just any where a family calls it "Book" or "Regular".
QString StyleOf(const QFont& font) {
    constexpr int otherSlope = 1000; // counts more than any difference in weight
    const QString family = font.family();
    QString nearest;
    int nearestDistance = 0;
    for (const QString& style : QFontDatabase::styles(family)) {
        const bool sameSlope = QFontDatabase::italic(family, style) == font.italic();
        const int distance = std::abs(QFontDatabase::weight(family, style) - font.weight()) +
                             (sameSlope ? 0 : otherSlope);
        if (nearest.isEmpty() || distance < nearestDistance ||
            (distance == nearestDistance && style.size() < nearest.size())) {
            nearest = style;
            nearestDistance = distance;
        }
    }
    return nearest;
}

QFont FontOf(const FontChoice& choice) {
    QFont font;
    if (!choice.family.isEmpty()) {
        font.setFamily(choice.family);
    }
    if (choice.points > 0) {
        font.setPointSizeF(choice.points);
    }
    // The dialog has styles only for families that it lists.
    if (!QFontDatabase::hasFamily(font.family())) {
        font.setFamily(QFontInfo(font).family());
    }
    font.setBold(choice.bold);
    font.setItalic(choice.italic);
    font.setStyleName(StyleOf(font));
    font.setUnderline(choice.underline);
    font.setStrikeOut(choice.strikeOut);
    return font;
}

QIcon Swatch(const QColor& color) {
    QPixmap pixmap(SwatchSize);
    pixmap.fill(color);
    QPainter painter(&pixmap);
    painter.setPen(Qt::darkGray);
    painter.drawRect(0, 0, SwatchSize.width() - 1, SwatchSize.height() - 1);
    return {pixmap};
}

} // namespace

FontDialog::FontDialog(const FontChoice& begin, QWidget* owner)
    : QDialog(owner), begin_(begin), color_(begin.color.isValid() ? begin.color : Qt::black),
      fonts_(new QFontDialog(FontOf(begin))), colorButton_(new QPushButton(tr("&Color..."))) {
    setObjectName(QStringLiteral("FontDialog"));
    setWindowTitle(tr("Font"));
    // As a part of this window it has no frame and no buttons of its own, and never closes.
    fonts_->setWindowFlags(Qt::Widget);
    fonts_->setSizeGripEnabled(false);
    fonts_->setOptions(QFontDialog::DontUseNativeDialog | QFontDialog::NoButtons);
    fonts_->setCurrentFont(FontOf(begin));
    shownFamily_ = fonts_->currentFont().family();
    shownPoints_ = fonts_->currentFont().pointSizeF();

    colorButton_->setObjectName(QStringLiteral("ColorButton"));
    colorButton_->setIconSize(SwatchSize);
    colorButton_->setAutoDefault(false);
    connect(colorButton_, &QPushButton::clicked, this, &FontDialog::ChooseColor);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    // Enter in the lists of the part would accept the part alone.
    connect(fonts_, &QDialog::accepted, this, &QDialog::accept);
    connect(fonts_, &QDialog::rejected, this, &QDialog::reject);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(colorButton_);
    bottom->addStretch();
    bottom->addWidget(buttons);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fonts_);
    layout->addLayout(bottom);
    ShowColor();
}

FontChoice FontDialog::Choice() const {
    const QFont font = fonts_->currentFont();
    FontChoice choice;
    choice.family = font.family() == shownFamily_ ? begin_.family : font.family();
    if (choice.family.isEmpty()) {
        choice.family = font.family();
    }
    const bool sameSize = begin_.points > 0 && font.pointSizeF() == shownPoints_;
    choice.points = sameSize ? begin_.points : font.pointSizeF();
    choice.bold = font.weight() > QFont::Normal;
    choice.italic = font.italic();
    choice.underline = font.underline();
    choice.strikeOut = font.strikeOut();
    choice.color = color_;
    return choice;
}

void FontDialog::ChooseColor() {
    ColorRequest request;
    request.owner = this;
    request.color = color_;
    if (const auto color = AskWithCustomColors(request)) {
        color_ = *color;
        ShowColor();
    }
}

void FontDialog::ShowColor() {
    colorButton_->setIcon(Swatch(color_));
    ColorSample();
}

void FontDialog::ColorSample() {
    auto* sample = fonts_->findChild<QLineEdit*>(QStringLiteral("qt_fontDialog_sampleEdit"));
    if (sample == nullptr) {
        return;
    }
    constexpr int lightest = 170; // of 255; a text this light cannot be read on white
    QPalette palette = sample->palette();
    palette.setColor(QPalette::Text, color_);
    palette.setColor(QPalette::Base, qGray(color_.rgb()) > lightest ? Qt::darkGray : Qt::white);
    sample->setPalette(palette);
}

} // namespace tavmoor
