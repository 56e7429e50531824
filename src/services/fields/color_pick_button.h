#pragma once

#include "core/document/project_document.h"
#include "services/controls/picture_button.h"
#include "services/windows/window_registry.h"

namespace tavmoor {

/// The palette button beside a control that shows a colour of the project. A double click on a text
/// box, or a click on a ColorBox, presses it: the button is the same thing for the keyboard, and
/// for who does not know of the double click.
class ColorPickButton final : public PictureButton {
    Q_OBJECT

public:
    /// @param control a TextBox, MemoBox or ColorBox; the colour menu comes up beside it
    /// @param color the document's field; it outlives the button
    ColorPickButton(const ButtonDescription& description, ProgramContext context, QWidget& control,
                    ColorValue& color, QWidget* parent);

Q_SIGNALS:
    /// Another colour was chosen; the field has it already.
    void Changed();

private:
    void Pick();

    ProgramContext context_;
    QWidget& control_;
    ColorValue& color_;
};

} // namespace tavmoor
