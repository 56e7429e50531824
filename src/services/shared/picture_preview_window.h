#pragma once

#include "services/windows/skinned_window.h"

#include <QRect>
#include <QSize>

#include <string>

class QCheckBox;
class QFrame;
class QImage;
class QLabel;

namespace tavmoor {

/// The room of a previewed picture, in twips; the canvas windows bound the height by the second.
inline constexpr int PreviewWidth = 4455;
inline constexpr int PreviewHeight = 3855;
inline constexpr int CanvasPreviewHeight = 2655;

/// The size at which a picture is previewed. One that fits keeps its natural size; otherwise its
/// longer side is set to its bound and the other one follows, even where that one then goes beyond
/// its own bound.
/// @param natural and the result in twips
QSize FitPreview(QSize natural, int heightBound = PreviewHeight);

/// Where the preview stands: 250 twips in from the lower right corner of the main window. In
/// logical pixels.
QPoint PreviewPlace(const QRect& main, QSize window);

/// `Form2`, the preview of a chosen picture, kept on top of the other windows. How its check box
/// stands when it closes decides whether there are further previews.
class Form2 final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit Form2(ProgramContext context);

    void ShowPicture(const QImage& picture);

protected:
    void OnLoad() override;
    void OnUnload() override;

private:
    QFrame* room_ = nullptr;
    QLabel* picture_ = nullptr;
    QCheckBox* disable_ = nullptr;
};

/// Shows a chosen picture in `Form2`, at the lower right corner of the main window, unless previews
/// are switched off or the path is empty. A picture that does not load is refused with a message.
/// @param path document form
/// @param main screen geometry of the main window, logical pixels
void ShowPreview(ProgramContext context, const std::string& path, const QRect& main);

} // namespace tavmoor
