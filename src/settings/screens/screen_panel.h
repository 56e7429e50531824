#pragma once

#include "settings/shared/panel.h"

#include <cstdint>
#include <string>

class QHBoxLayout;
class QLabel;
class QLayout;

namespace tavmoor {

struct ScreenPanelDescription;
struct ScreenDimension;
struct ScreenFields;
struct NamedText;
class MemoBox;
class TextBox;

/// `Frame9` and `Frame12`, the splash and the exit screen: one panel with two descriptions.
class ScreenPanel final : public Panel {
    Q_OBJECT

public:
    ScreenPanel(const ScreenPanelDescription& description, ProgramContext context, QWidget* parent);

protected:
    /// The time is looked at when a key is released in its field.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLayout* MakeSwitches();
    QLayout* MakeTime();
    QWidget* MakeTextGroup();
    QLayout* MakeTextRow(MemoBox& text);
    QLayout* MakeStyleRow();
    QWidget* MakePictureGroup();
    QWidget* MakeDimensions();
    QWidget* MakeShowChoice();
    QLayout* MakeColor();
    void AddDimension(QHBoxLayout& row, const ScreenDimension& dimension,
                      FieldOf<std::int16_t> field);
    QWidget* MakeCheckBox(const NamedText& text, FieldOf<bool> field);
    QLayout* MakePosition(const NamedText& text, FieldOf<std::string> field);

    void ChooseFont();
    void CheckTime();

    const ScreenPanelDescription& description_;
    const ScreenFields& fields_;
    TextBox* time_ = nullptr;
    QLabel* timeUnit_ = nullptr;
};

} // namespace tavmoor
