#include "settings/template/template_picture.h"

#include "services/look/artwork.h"
#include "services/look/theme.h"
#include "services/values/twips.h"

#include <QPainter>

namespace tavmoor {

namespace {

struct Place {
    int left, top, width, height; // twips

    [[nodiscard]] QRect InPixels() const {
        return {{PixelsOf(left), PixelsOf(top)}, PixelsOf(width, height)};
    }
};

// The picture comes back a little lower and flatter after a click beside it, on purpose.
constexpr Place Small{6480, 840, 4455, 2415};
constexpr Place SmallAfterClickBeside{6480, 960, 4455, 1815};
constexpr QPoint FullPlace{PixelsOf(0), PixelsOf(435)};

} // namespace

TemplatePicture::TemplatePicture(QWidget& window) : QAbstractButton(&window) {
    setObjectName(QStringLiteral("Picture1"));
    setToolTip(QStringLiteral("Click to enlarge"));
    setAccessibleName(QStringLiteral("Picture of the template"));
    setCursor(HandCursor());
    setGeometry(SmallPlace());
    connect(this, &QAbstractButton::clicked, this, &TemplatePicture::Toggle);
}

QRect TemplatePicture::SmallPlace() {
    return Small.InPixels();
}

void TemplatePicture::SetPicture(const QImage& picture) {
    picture_ = picture;
    if (autosize_ && !picture_.isNull()) {
        resize(picture_.size());
    }
    update();
}

void TemplatePicture::Toggle() {
    if (picture_.isNull()) {
        return;
    }
    if (autosize_) {
        autosize_ = false;
        setGeometry(Small.InPixels());
    } else {
        Enlarge();
    }
}

void TemplatePicture::Enlarge() {
    autosize_ = true;
    setGeometry({FullPlace, picture_.size()});
    raise();
}

void TemplatePicture::Shrink() {
    if (autosize_) {
        autosize_ = false;
        setGeometry(SmallAfterClickBeside.InPixels());
    }
}

void TemplatePicture::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), theme::Surface);
    if (!picture_.isNull()) {
        QRect place(QPoint(), autosize_ ? picture_.size()
                                        : picture_.size().scaled(size(), Qt::KeepAspectRatio));
        place.moveCenter(rect().center());
        painter.drawImage(place, picture_);
    }
    painter.setPen(hasFocus() ? QPen(theme::Accent, 2) : QPen(theme::Border));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace tavmoor
