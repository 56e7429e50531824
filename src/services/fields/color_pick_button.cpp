#include "services/fields/color_pick_button.h"

#include "services/colors/color_pick.h"
#include "services/controls/color_box.h"
#include "services/controls/text_boxes.h"

namespace tavmoor {

ColorPickButton::ColorPickButton(const ButtonDescription& description, ProgramContext context,
                                 QWidget& control, ColorValue& color, QWidget* parent)
    : PictureButton(description, parent), context_(context), control_(control), color_(color) {
    connect(this, &QAbstractButton::clicked, this, &ColorPickButton::Pick);
    if (auto* box = qobject_cast<TextBox*>(&control)) {
        connect(box, &TextBox::DoubleClicked, this, &QAbstractButton::click);
    } else if (auto* memo = qobject_cast<MemoBox*>(&control)) {
        connect(memo, &MemoBox::DoubleClicked, this, &QAbstractButton::click);
    } else if (auto* area = qobject_cast<ColorBox*>(&control)) {
        connect(area, &QAbstractButton::clicked, this, &QAbstractButton::click);
    }
    EnableWhenStanding(*this, context.windows, WindowName::menu2);
}

void ColorPickButton::Pick() {
    PickColor(context_, ColorMenuPlace(control_), *this, [this](const MenuResult& result) {
        if (const auto* color = std::get_if<ColorValue>(&result)) {
            color_ = *color;
            Q_EMIT Changed();
        }
    });
}

} // namespace tavmoor
