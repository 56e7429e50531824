#include "services/windows/window_strips.h"

#include "services/look/artwork.h"
#include "services/look/theme.h"

#include <QMouseEvent>
#include <QPainter>

namespace tavmoor {

namespace {

constexpr int ChromeThirdWidth = 30;
constexpr int ChromeHeight = 26;
constexpr int ChromeIcon = 16;

QString DrawingOf(ChromeAction action) {
    return action == ChromeAction::Minimise ? QStringLiteral("minimise") : QStringLiteral("close");
}

} // namespace

TitleStrip::TitleStrip(SkinnedWindow& window, const QString& title)
    : QWidget(&window), window_(window), title_(title) {
    setObjectName(QString::fromLatin1(window.Look().dragArea));
    setFixedHeight(theme::TitleHeight);
    setAccessibleName(QStringLiteral("Title bar"));
}

void TitleStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::TitleBack);
    painter.setPen(theme::TitleText);
    painter.setFont(theme::HeadingFont());
    const QRect place = rect().adjusted(theme::Margin, 0, -3 * ChromeThirdWidth - theme::Margin, 0);
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(title_, Qt::ElideRight, place.width()));
}

void TitleStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        window_.Drag();
    }
}

ChromeStrip::ChromeStrip(SkinnedWindow& window, const ChromeThirds& thirds)
    : QWidget(&window), window_(window), thirds_(thirds) {
    setObjectName(QStringLiteral("Image113"));
    setFixedSize(3 * ChromeThirdWidth, ChromeHeight);
    setMouseTracking(true);
    setAccessibleName(QStringLiteral("Minimise and close"));
}

int ChromeStrip::ThirdAt(qreal x) const {
    return qBound(0, static_cast<int>(x * 3 / width()), 2);
}

void ChromeStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int third = 0; third < 3; ++third) {
        const ChromeAction action = thirds_.at(static_cast<std::size_t>(third));
        if (action == ChromeAction::None) {
            continue;
        }
        const QRect place(third * ChromeThirdWidth, 0, ChromeThirdWidth, height());
        if (third == hovered_) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(action == ChromeAction::Close ? theme::Refused : theme::ChromeHover);
            painter.drawRoundedRect(place, theme::Radius, theme::Radius);
        }
        QRect icon(0, 0, ChromeIcon, ChromeIcon);
        icon.moveCenter(place.center());
        ArtworkIcon(DrawingOf(action), theme::TitleText).paint(&painter, icon);
    }
}

void ChromeStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        window_.RunChrome(ThirdAt(event->position().x()));
    }
}

void ChromeStrip::mouseMoveEvent(QMouseEvent* event) {
    hovered_ = ThirdAt(event->position().x());
    const ChromeAction action = thirds_.at(static_cast<std::size_t>(hovered_));
    setToolTip(action == ChromeAction::Minimise ? QStringLiteral("Minimise")
               : action == ChromeAction::Close  ? QStringLiteral("Close")
                                                : QString());
    action == ChromeAction::None ? unsetCursor() : setCursor(HandCursor());
    update();
}

void ChromeStrip::leaveEvent(QEvent* /*event*/) {
    hovered_ = -1;
    update();
}

} // namespace tavmoor
