#pragma once

#include "core/files/profile_file.h"
#include "services/dialogs/common_dialog.h"
#include "services/windows/window_registry.h"

#include <optional>
#include <string>
#include <string_view>

class QWidget;

namespace tavmoor {

/// The commands that act on the project as a whole. A cancelled dialog leaves everything as it was.
class ProjectCommands {
public:
    ProjectCommands(ProgramContext context, QWidget& owner) : context_(context), owner_(owner) {}

    void NewProject();
    /// Drops the current project without asking once a file is chosen. A file of the recovery
    /// folder is opened as a project that was never saved.
    void OpenProject();
    /// OpenProject, from the program's folder.
    void OpenExample();
    void SaveProject();
    void SaveProjectAs();

    /// Offers the copy of a project that the session says a crash left.
    void OfferRecovered();
    /// Before a document that differs from its file is dropped: saves it in the recovery folder,
    /// silently.
    void KeepUnsaved();

private:
    [[nodiscard]] std::string AskForProject(std::string_view title, const std::string& start);
    void Open(const std::string& path);
    void OpenRecovered(const std::string& path);
    /// Drops the current project.
    void Reset();
    std::optional<ProfileFile> LoadOrTell(const std::string& path);
    void Read(const ProfileFile& file);
    void ShowOpened();
    void Save(std::string_view target);

    ProgramContext context_;
    QWidget& owner_;
    /// One for opening and saving: a save goes by the path of its last use.
    CommonDialog dialog_;
};

} // namespace tavmoor
