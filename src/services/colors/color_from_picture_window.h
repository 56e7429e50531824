#pragma once

#include "core/document/project_document.h"
#include "services/windows/skinned_window.h"

#include <string>

class QImage;
class QLabel;

namespace tavmoor {

class ColorPictureView;

/// `PicPrev`: a colour is picked from a picture. OK puts it into the session's MenuResult; every
/// other end of the window puts CancelledResult there.
class PicPrev final : public SkinnedWindow {
    Q_OBJECT

public:
    explicit PicPrev(ProgramContext context);

    void SetPicture(const QImage& picture);

protected:
    void OnUnload() override;

private:
    QWidget* MakeTools();
    QWidget* MakeChoice();
    void ShowSample(ColorValue color);
    void Confirm();

    ColorPictureView* view_ = nullptr;
    QLabel* sample_ = nullptr;
    ColorValue color_ = 0;
};

/// Opens `PicPrev` with a picture.
/// @param asking the window that asks for the colour
/// @param path document form
/// @return false when the picture was refused, which the user was told; nothing is open then
bool OpenPictureToPickFrom(ProgramContext context, QWidget* asking, const std::string& path);

} // namespace tavmoor
