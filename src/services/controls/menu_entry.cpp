#include "services/controls/menu_entry.h"

#include "services/look/artwork.h"
#include "services/look/theme.h"

#include <QKeyEvent>
#include <QPainter>

namespace tavmoor {

namespace {

// Logical pixels.
constexpr int EntryHeight = 30;
constexpr int IconSide = 18;
constexpr int TextLeft = 32;

} // namespace

MenuEntryLabel::MenuEntryLabel(const MenuEntryDescription& description, QWidget* parent)
    : QAbstractButton(parent), icon_(ArtworkIcon(QString::fromLatin1(description.artwork))) {
    setText(QString::fromUtf16(description.text));
    setAccessibleName(text().trimmed());
    setObjectName(QString::fromLatin1(description.objectName));
    setCursor(HandCursor());
    setFocusPolicy(Qt::StrongFocus);
}

QSize MenuEntryLabel::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + TextLeft + 2 * theme::Margin, EntryHeight};
}

void MenuEntryLabel::enterEvent(QEnterEvent* /*event*/) {
    setFocus();
}

void MenuEntryLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down) {
        focusNextChild();
    } else if (event->key() == Qt::Key_Up) {
        focusPreviousChild();
    } else {
        QAbstractButton::keyPressEvent(event);
    }
}

void MenuEntryLabel::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (hasFocus()) {
        painter.fillRect(rect(), theme::AccentPale);
    }
    const QRect icon(theme::Gap, (height() - IconSide) / 2, IconSide, IconSide);
    icon_.paint(&painter, icon);
    painter.setPen(theme::Text);
    painter.drawText(rect().adjusted(TextLeft, 0, 0, 0), Qt::AlignVCenter, text());
}

} // namespace tavmoor
