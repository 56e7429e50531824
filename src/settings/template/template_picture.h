#pragma once

#include <QAbstractButton>
#include <QImage>
#include <QRect>

namespace tavmoor {

/// `Picture1`, the preview of a template: small, with the whole picture made to fit, or, after a
/// click, at the picture's own size over the other controls. Lies directly in its window.
class TemplatePicture final : public QAbstractButton {
    Q_OBJECT

public:
    explicit TemplatePicture(QWidget& window);

    /// The place in the window at first, logical pixels.
    [[nodiscard]] static QRect SmallPlace();

    /// A null image leaves the box empty.
    void SetPicture(const QImage& picture);
    /// Makes a picture at its own size small again, after a click beside it.
    void Shrink();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Toggle();
    void Enlarge();

    QImage picture_;
    bool autosize_ = false;
};

} // namespace tavmoor
