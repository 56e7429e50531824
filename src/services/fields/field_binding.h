#pragma once

#include "core/document/field_access.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

class QAbstractSlider;
class QCheckBox;
class QComboBox;
class QRadioButton;
class QWidget;

namespace tavmoor {

class ColorBox;
class MemoBox;
class PathBox;
class TextBox;
class ValueLabel;

/// When the window's input goes to the document.
enum class Storing : std::uint8_t { AtOnce, OnConfirm };

/// Ties the controls of a window to fields of the document, as they are made:
/// `binder.Bind(*box, At<&ProjectDocument::Zvuk, &SoundSpec::Komanda>)`. The control says how the
/// field is shown; a field of a type that it cannot show does not compile. The only place that
/// copies values between the two.
class FieldBinder final : public QObject {
    Q_OBJECT

public:
    /// @param window has all controls that are bound; the binder lives as long as it
    /// @param document outlives the window
    FieldBinder(QWidget& window, ProjectDocument& document, Storing storing);

    // Controls in which the user gives the value.

    void Bind(TextBox& box, FieldOf<std::string> field);
    /// What has no document form is not stored.
    void Bind(PathBox& box, FieldOf<std::string> field);
    void Bind(MemoBox& box, FieldOf<std::string> field);
    void Bind(QCheckBox& box, FieldOf<bool> field);
    void Bind(QCheckBox& box, FieldOf<std::int16_t> field); ///< stored as 0 or 1
    /// The entry's text is the value, "" is no choice. A value that is no entry is shown and kept.
    void Bind(QComboBox& box, FieldOf<std::string> field);
    /// A scroll bar as well. A number out of its range stays until the user sets another one.
    void Bind(QAbstractSlider& slider, FieldOf<std::int16_t> field);
    /// @param value what the button stands for
    void BindOption(QRadioButton& button, FieldOf<bool> field, bool value);
    void BindOption(QRadioButton& button, FieldOf<std::int16_t> field, std::int16_t value);

    // Controls that show a value which is chosen elsewhere.

    void Bind(ValueLabel& label, FieldOf<std::string> field);
    void Bind(ValueLabel& label, FieldOf<std::int16_t> field);
    /// What the box was given by SetColor goes to the field with Store.
    void Bind(ColorBox& box, FieldOf<ColorValue> field);
    void Bind(ColorBox& box, FieldOf<std::string> field); ///< a colour's decimal text
    void BindTextColor(QWidget& control, FieldOf<ColorValue> field);
    void BindTextColor(QWidget& control, FieldOf<std::string> field);
    void BindBackColor(QWidget& control, FieldOf<ColorValue> field);
    void BindBackColor(QWidget& control, FieldOf<std::string> field);
    void BindBold(QWidget& control, FieldOf<bool> field);
    void BindItalic(QWidget& control, FieldOf<bool> field);
    void BindFontName(QWidget& control, FieldOf<std::string> field);
    void BindFontSize(QWidget& control, FieldOf<std::string> field); ///< points

    /// Shows all fields. What the user is not editing is not stored back, so that values out of a
    /// control's range survive.
    void Show();
    /// Stores all controls that the user can change; for windows with a confirm command.
    void Store();

Q_SIGNALS:
    /// The user changed the control and its field was stored.
    void Stored(QWidget* control);

private:
    struct Bound {
        QWidget* control;
        std::function<void()> show;
        std::function<void()> store; ///< empty for what is chosen elsewhere
    };

    template <typename Control, typename Value, typename ShowIt>
    void AddShown(Control& control, FieldOf<Value> field, ShowIt show);
    /// @return what to call when the user has changed the control
    template <typename Control, typename Value, typename ShowIt, typename TakeIt>
    auto AddInput(Control& control, FieldOf<Value> field, ShowIt show, TakeIt take);
    template <typename Value>
    void AddCheck(QCheckBox& box, FieldOf<Value> field);
    template <typename Value>
    void AddOption(QRadioButton& button, FieldOf<Value> field, Value value);
    template <typename Value>
    void AddColor(ColorBox& box, FieldOf<Value> field);
    template <typename Value, typename Change>
    void AddFont(QWidget& control, FieldOf<Value> field, Change change);
    void Edited(const Bound& bound);

    ProjectDocument& document_;
    std::vector<Bound> rows_;
    Storing storing_;
    bool showing_ = false;
};

} // namespace tavmoor
