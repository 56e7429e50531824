#pragma once

#include "settings/shared/panel.h"

#include <vector>

class QHBoxLayout;
class QLabel;
class QLayout;
class QLineEdit;

namespace tavmoor {

struct ScreenPanelDescription;
struct ScreenDimension;
struct NamedText;
class MemoBox;

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
    void AddDimension(QHBoxLayout& row, const ScreenDimension& dimension);
    QWidget* MakeCheckBox(const NamedText& text, std::string_view key);
    QLayout* MakePosition(const NamedText& text, std::string_view key);

    void Tie(const char* control, FieldForm form, std::string_view key, int value = 0);
    void ChooseFont();
    void CheckTime();
    [[nodiscard]] ScreenSpec& Screen() const;

    const ScreenPanelDescription& description_;
    std::vector<FieldBinding> table_;
    QLineEdit* time_ = nullptr;
    QLabel* timeUnit_ = nullptr;
};

} // namespace tavmoor
