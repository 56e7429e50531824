#pragma once

#include "services/colors/color_tool.h"

#include <string>

class QImage;
class QLabel;

namespace tavmoor {

class ColorPictureView;

/// `PicPrev`: a colour is picked from a picture. OK gives it to who asked; every other end of the
/// window cancels the choice.
class PicPrev final : public ColorTool {
    Q_OBJECT

public:
    explicit PicPrev(ProgramContext context);

    void SetPicture(const QImage& picture);

private:
    QWidget* MakeTools();
    QWidget* MakeChoice();
    void ShowSample(ColorValue color);
    void Confirm();

    ColorPictureView* view_ = nullptr;
    QLabel* sample_ = nullptr;
    ColorValue color_ = 0;
};

/// Opens `PicPrev` with a picture, for a choice that has no result yet. A picture that is refused,
/// which the user is told, cancels the choice.
/// @param path document form
void OpenPictureToPickFrom(ProgramContext context, const MenuAnswer& answer,
                           const std::string& path);

} // namespace tavmoor
