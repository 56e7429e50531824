#include "services/colors/color_picture_view.h"

#include "services/look/theme.h"
#include "services/values/color_value.h"
#include "services/values/twips.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace tavmoor {

namespace {

constexpr QSize AreaSize{300, 180}; ///< logical pixels; the bounds of a fitted picture are inside

QRectF PixelRect(const PictureFit& fit) {
    return {fit.left / TwipsPerPixel, fit.top / TwipsPerPixel, fit.width / TwipsPerPixel,
            fit.height / TwipsPerPixel};
}

/// The direction of an arrow key; null for another key.
QPoint DirectionOf(int key) {
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

QString RgbText(ColorValue color) {
    // The three bytes of the value, of which the lowest is red.
    const auto bits = static_cast<std::uint32_t>(color);
    return QStringLiteral("RGB(%1, %2, %3)")
        .arg(bits & 0xFFU)
        .arg((bits >> 8U) & 0xFFU)
        .arg((bits >> 16U) & 0xFFU);
}

} // namespace

ColorValue PixelColor(const QImage& image, QPoint pixel) {
    return image.valid(pixel) ? ToColorValue(image.pixelColor(pixel)) : NoPixel;
}

ColorPictureView::ColorPictureView(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("Picture1"));
    setFixedSize(AreaSize);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(QStringLiteral("Picture"));
    setAccessibleDescription(
        QStringLiteral("The arrow keys move the picture, plus and minus zoom; Ctrl and the arrow "
                       "keys move the cross that picks the color"));
    image1_ = new QWidget(this);
    image1_->setObjectName(QStringLiteral("Image1"));
    image1_->setCursor(Qt::CrossCursor);
    image1_->setMouseTracking(true);
    image1_->installEventFilter(this);
}

void ColorPictureView::SetPicture(const QImage& picture) {
    picture_ = picture;
    Reset();
    PickAt(rect().center());
}

void ColorPictureView::Reset() {
    Show(FitToArea(TwipsOf(picture_.width()), TwipsOf(picture_.height()), TwipsOf(width()),
                   TwipsOf(height())));
}

void ColorPictureView::Zoom(double factor) {
    if (const auto zoomed = Zoomed(fit_, factor)) {
        Show(*zoomed);
    }
}

void ColorPictureView::Pan(int horizontal, int vertical) {
    PictureFit moved = fit_;
    moved.left += horizontal * PanStep;
    moved.top += vertical * PanStep;
    Show(moved);
}

void ColorPictureView::Show(const PictureFit& fit) {
    fit_ = fit;
    rendered_ = QImage();
    image1_->setGeometry(PixelRect(fit_).toAlignedRect());
    update();
}

const QImage& ColorPictureView::Rendered() {
    const qreal scale = devicePixelRatioF();
    if (rendered_.isNull() || rendered_.devicePixelRatioF() != scale) {
        rendered_ = QImage((QSizeF(size()) * scale).toSize(), QImage::Format_RGB32);
        rendered_.setDevicePixelRatio(scale);
        rendered_.fill(theme::Surface);
        QPainter painter(&rendered_);
        // A picture made larger keeps its own colours.
        const QRectF place = PixelRect(fit_);
        painter.setRenderHint(QPainter::SmoothPixmapTransform,
                              place.width() * scale < picture_.width());
        painter.drawImage(place, picture_);
    }
    return rendered_;
}

ColorValue ColorPictureView::ColorAt(QPoint place) {
    const QImage& shown = Rendered();
    const QPointF pixel = QPointF(place) * shown.devicePixelRatioF();
    return PixelColor(shown, {qFloor(pixel.x()), qFloor(pixel.y())});
}

void ColorPictureView::PickAt(QPoint place) {
    cross_ = place;
    update();
    Q_EMIT Picked(ColorAt(place));
}

void ColorPictureView::TellColorAt(QPoint place, QPoint onScreen) {
    const QString text = RgbText(ColorAt(place));
    image1_->setToolTip(text);
    QToolTip::showText(onScreen, text, image1_);
}

bool ColorPictureView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const QPoint place = image1_->mapToParent(mouse->position().toPoint());
        if (event->type() == QEvent::MouseMove) {
            TellColorAt(place, mouse->globalPosition().toPoint());
        } else {
            setFocus(Qt::MouseFocusReason);
            PickAt(place);
        }
        return true;
    }
    return QFrame::eventFilter(watched, event);
}

void ColorPictureView::keyPressEvent(QKeyEvent* event) {
    constexpr int LongStep = 10;
    const QPoint direction = DirectionOf(event->key());
    const auto modifiers = event->modifiers();
    if (!direction.isNull() && modifiers.testFlag(Qt::ControlModifier)) {
        const int step = modifiers.testFlag(Qt::ShiftModifier) ? LongStep : 1;
        const QPoint place = cross_ + direction * step;
        PickAt({qBound(0, place.x(), width() - 1), qBound(0, place.y(), height() - 1)});
    } else if (!direction.isNull()) {
        Pan(direction.x(), direction.y());
    } else if (event->key() == Qt::Key_Plus) {
        Zoom(ZoomInFactor);
    } else if (event->key() == Qt::Key_Minus) {
        Zoom(ZoomOutFactor);
    } else {
        QFrame::keyPressEvent(event);
    }
}

void ColorPictureView::focusInEvent(QFocusEvent* event) {
    QFrame::focusInEvent(event);
    update();
}

void ColorPictureView::focusOutEvent(QFocusEvent* event) {
    QFrame::focusOutEvent(event);
    update();
}

void ColorPictureView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.drawImage(QPoint(), Rendered());
    if (hasFocus()) {
        PaintCross(painter);
    }
    painter.setPen(hasFocus() ? theme::Accent : theme::Border);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ColorPictureView::PaintCross(QPainter& painter) const {
    constexpr int Arm = 7;
    constexpr int Hole = 2; // the picked pixel stays visible
    const auto drawArms = [&] {
        for (const QPoint& arm : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
            painter.drawLine(cross_ + arm * Hole, cross_ + arm * Arm);
        }
    };
    // White around dark shows on every picture.
    painter.setPen(QPen(theme::Surface, 3));
    drawArms();
    painter.setPen(QPen(theme::Text, 1));
    drawArms();
}

} // namespace tavmoor
