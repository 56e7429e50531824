#pragma once

#include "core/document/project_document.h"
#include "services/colors/color_picture_fit.h"

#include <QFrame>
#include <QImage>

namespace tavmoor {

/// What a pixel that is not there gives; it is taken for a colour like any other, and shown as one
/// whose system colour is not known: black.
inline constexpr ColorValue NoPixel = -1;

/// The colour of a pixel; NoPixel outside the image.
ColorValue PixelColor(const QImage& image, QPoint pixel);

/// `Picture1`, a clipping area in which the picture `Image1` can be zoomed and moved. Pressing the
/// mouse on the picture picks the colour that the area shows there; so do the keys that move the
/// cross (Ctrl and the arrows, ten pixels at a time with Shift). Arrows alone move the picture, "+"
/// and "-" zoom.
class ColorPictureView final : public QFrame {
    Q_OBJECT

public:
    explicit ColorPictureView(QWidget* parent = nullptr);

    /// Shows a picture as FitToArea lays it, and picks the colour in the middle of the area.
    void SetPicture(const QImage& picture);
    /// Fits the picture again.
    void Reset();
    void Zoom(double factor);
    /// Moves the picture by PanStep in each direction given: -1, 0 or 1.
    void Pan(int horizontal, int vertical);

    [[nodiscard]] const PictureFit& Fit() const { return fit_; }

Q_SIGNALS:
    void Picked(ColorValue color);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Show(const PictureFit& fit);
    void PickAt(QPoint place);
    void TellColorAt(QPoint place, QPoint onScreen);
    /// The area as it is seen, in the pixels of the screen.
    const QImage& Rendered();
    [[nodiscard]] ColorValue ColorAt(QPoint place);
    void PaintCross(QPainter& painter) const;

    QWidget* image1_ = nullptr; ///< takes the mouse; the area paints the picture
    QImage picture_;
    QImage rendered_; ///< null when it is to be drawn afresh
    PictureFit fit_;
    QPoint cross_; ///< where the last colour was picked, logical pixels of the area
};

} // namespace tavmoor
