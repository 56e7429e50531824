#pragma once

#include "core/document/project_writer.h"
#include "services/dialogs/common_dialog.h"

namespace tavmoor {

/// The save command's dialog. It works on the CommonDialog of the window that also opens projects,
/// so that the path of the dialog's last use is the open project's.
class CommonProjectSaveDialog final : public ProjectSaveDialog {
public:
    /// @param dialog outlives this object
    explicit CommonProjectSaveDialog(CommonDialog& dialog) noexcept : dialog_(dialog) {}

    /// Asks again, too, when the file that the typed name stands for once it has its extension
    /// exists and is not to be replaced: the file dialog itself knows the typed name alone.
    std::string Show(std::string_view initialFolder, std::string_view title,
                     std::string_view filter) override;
    [[nodiscard]] std::string CurrentFileName() const override { return dialog_.FileName; }
    void LetEventsRun() override;

private:
    [[nodiscard]] bool MayBeReplaced(const std::string& chosen) const;

    CommonDialog& dialog_;
};

} // namespace tavmoor
