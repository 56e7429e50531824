#pragma once

#include "core/document/project_document.h"
#include "core/document/project_fields.h"

#include <QObject>
#include <QString>

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

class QWidget;

namespace tavmoor {

/// How a control shows and changes a field.
enum class FieldForm : std::uint8_t {
    Text,       ///< a TextBox, PathBox or MemoBox
    Shown,      ///< a ValueLabel; the value is chosen elsewhere
    Checked,    ///< a check box, for a flag or a number 0 or 1
    Choice,     ///< a combo box; its text is the value, "" is no choice
    Number,     ///< a spin box, slider or scroll bar
    Option,     ///< a radio button that stands for one value of a number or flag
    Color,      ///< a ColorBox
    TextColor,  ///< the text colour of a control; the value is chosen elsewhere
    BackColor,  ///< the back colour of a control; the value is chosen elsewhere
    BoldFont,   ///< a control's own font is bold; the value is chosen elsewhere
    ItalicFont, ///< the same for italic
    FontName,   ///< the same for the name
    FontSize,   ///< the same for the size, in points
};

/// One row of a window's table: a control, how it shows a field, and the field.
struct FieldBinding {
    const char* control;
    FieldForm form;
    std::string_view section;
    std::string_view key;
    int value = 0; ///< what an Option stands for
};

/// When the window's input goes to the document.
enum class Storing : std::uint8_t { AtOnce, OnConfirm };

/// Ties the controls of a window to fields of the document by a table. The only place that copies
/// values between the two.
class FieldBinder final : public QObject {
    Q_OBJECT

public:
    /// @param window has all controls of the table, under their object names
    FieldBinder(QWidget& window, ProjectDocument& document, std::span<const FieldBinding> table,
                Storing storing);

    /// Shows all fields. What the user is not editing is not stored back, so that values out of a
    /// control's range survive.
    void Show();
    /// Stores all controls that the user can change; for windows with a confirm command.
    void Store();

Q_SIGNALS:
    /// The user changed the control and its field was stored.
    void Stored(const QString& control);

private:
    struct Bound {
        const FieldBinding* row;
        QWidget* control;
        FieldPlace place;
    };

    void Connect(const Bound& bound);
    void Edited(const Bound& bound);
    void StoreOne(const Bound& bound);

    ProjectDocument& document_;
    std::vector<Bound> rows_;
    Storing storing_;
    bool showing_ = false;
};

} // namespace tavmoor
