#pragma once

#include "core/files/file_stamp.h"
#include "settings/shared/panel.h"

#include <string>

class QLabel;
class QVBoxLayout;

namespace tavmoor {

class PathBox;
class ValueLabel;

/// `Frame2`, the main settings: the folder with the disc's content, the template, the background
/// and the icon of the autorun window, and the ways to the windows that refine them.
class Frame2 final : public Panel {
    Q_OBJECT

public:
    explicit Frame2(ProgramContext context, QWidget* parent);

    void ShowDocument() override;

    /// Lets the folder be chosen; `Command32`.
    void BrowseCdFolder();
    /// Puts the focus into the field of the folder.
    void FocusCdFolder();

private:
    QWidget* MakeFolderGroup();
    QWidget* MakeTemplateGroup();
    QWidget* MakeBackgroundGroup();
    QWidget* MakeIconGroup();
    QWidget* MakeFurtherSettings();

    void BrowseIcon();
    void StoreIcon(const std::string& path);
    void ShowIconIgnoringLoadErrors();
    void OpenExpiryAndShortcuts();

    PathBox* folder_ = nullptr;
    ValueLabel* templateName_ = nullptr;
    QLabel* icon_ = nullptr;
    FileStamp shownIcon_;
};

} // namespace tavmoor
