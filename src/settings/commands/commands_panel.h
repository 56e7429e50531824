#pragma once

#include "settings/shared/panel.h"

#include <string>

class QGridLayout;
class QLabel;
class QLayout;

namespace tavmoor {

class PictureButton;
class ValueLabel;

/// `Frame4`, the six fixed commands of a simple template.
class Frame4 final : public Panel {
    Q_OBJECT

public:
    explicit Frame4(ProgramContext context, QWidget* parent);

    void ShowDocument() override;

private:
    void AddHeads(QGridLayout& grid);
    void AddRow(QGridLayout& grid, std::size_t command);
    [[nodiscard]] QLayout* MakeExitRow();
    [[nodiscard]] QWidget* MakeMenuTitlesRow();
    [[nodiscard]] PictureButton* MakeDescriptionsButton();
    void OpenAdditionalCommands();

    void BrowseTarget(std::size_t command);
    void SetTarget(std::size_t command, std::string target);
    void ClearCommand(std::size_t command);
    void ShowFolder();
    void ShowMenuTitles();

    ValueLabel* folder_ = nullptr;
    PictureButton* menuTitles_ = nullptr;
    QLabel* menuTitlesNote_ = nullptr;
};

} // namespace tavmoor
