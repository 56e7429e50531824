#pragma once

#include "core/document/project_document.h"

#include <filesystem>
#include <optional>
#include <string>

namespace tavmoor {

/// Where projects are kept that would be lost otherwise: the folder "recovery" in the user's data
/// folder. It need not exist.
std::filesystem::path RecoveryFolder();

/// True for a file that lies in the recovery folder itself.
bool IsInRecoveryFolder(const std::string& path);

/// Writes a copy of the project into the recovery folder, under a name of date, time and the
/// project's own name; of all copies there the newest twenty stay. Buttons that were read and that
/// no canvas has stored since are written, too.
/// @return the copy's path
/// @throws RuntimeError when it cannot be written
std::string WriteRecoveryCopy(const ProjectDocument& document);

/// For a program without a session, that ends on a run-time error: writes the project beside its
/// file, as "name.recovered.tavp", or into the recovery folder when it was never saved or its
/// folder cannot be written. Replaces nothing.
/// @return the file's path
/// @throws RuntimeError when it cannot be written
std::string WriteRecoveryFile(const ProjectDocument& document);

/// The newest copy in the recovery folder, if it was written at that time or later.
std::optional<std::string> NewestRecoveryCopy(std::filesystem::file_time_type since);

/// The copy that the recovery folder has of the open project for as long as the project differs
/// from its file. A project has one copy at a time, so that long work does not push out others.
class RecoveryCopy {
public:
    /// Keeps nothing until the first Rest or Adopt.
    RecoveryCopy() = default;
    explicit RecoveryCopy(const ProjectDocument& document) { Rest(document); }

    /// The project is as new, as opened or as saved: there is nothing to recover in it.
    void Rest(const ProjectDocument& document);
    /// The project was opened from a copy: it differs from its file until it is saved.
    /// The copy counts as written now, so that a crash of this run offers it again.
    void Adopt(const std::string& copy, const ProjectDocument& document);
    /// Brings the copy up to date when the project differs from its file, and deletes it when it no
    /// longer does.
    /// @return the path of the copy, "" when there is none
    /// @throws RuntimeError when it cannot be written
    std::string Keep(const ProjectDocument& document);
    /// Keep for a project that is about to be dropped: its copy stays. Nothing is kept after that
    /// until the next Rest or Adopt, so that a half-read project is never kept.
    std::string KeepAndLeave(const ProjectDocument& document);
    /// The same for a project that is dropped whether it can be kept or not.
    void KeepAndLeaveIgnoringErrors(const ProjectDocument& document);
    void KeepIgnoringErrors(const ProjectDocument& document);

private:
    void DeleteCopy();

    std::optional<std::string> textAtRest_; ///< nothing while there is no project to keep
    std::string path_;                      ///< of the copy; "" when there is none
    std::string copied_;                    ///< the project's text when the copy was written
};

} // namespace tavmoor
