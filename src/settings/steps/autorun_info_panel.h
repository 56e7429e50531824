#pragma once

#include "settings/shared/panel.h"

#include <string>

class QGridLayout;

namespace tavmoor {

struct MainTextRow;

/// `Frame3`, titles and main texts: a row for each text, with its colour and its font.
class Frame3 final : public Panel {
    Q_OBJECT

public:
    explicit Frame3(ProgramContext context, QWidget* parent);

private:
    void AddTaskBarTitle();
    void AddColumnHeads();
    void AddText(const MainTextRow& row);
    template <typename Box>
    QWidget* MakeBox(const MainTextRow& row);
    void AddColor(const MainTextRow& row, QWidget& box);
    void AddFont(const MainTextRow& row, QWidget& box);
    void AddStyleWords();
    void AddLogoPicture();
    void AddTransparency();
    void AddCaption(const char16_t* text, QWidget& buddy);
    void AddValue(const char* label, FieldOf<std::string> field, const QString& accessibleName,
                  int column);
    void ChooseFont(const MainTextRow& row);

    QGridLayout* grid_;
    int line_ = 0; ///< of the grid, the one that is filled
};

} // namespace tavmoor
