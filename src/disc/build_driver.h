#pragma once

#include "core/document/project_document.h"
#include "disc/build_events.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tavmoor {

/// How a build ended.
enum class BuildOutcome : std::uint8_t {
    Built,
    FolderMissing, ///< `CdFolder` does not exist; the window leads back to the main settings
    NameRefused,   ///< forbidden characters; blanks in the name were replaced
    NameEmpty,
    FileUnreadable, ///< a file of the list cannot be read; the build folder keeps what was written
};

struct BuildRequest {
    std::string name;             ///< the autorun's name without ".exe"
    std::string buildFolder;      ///< a folder of the user's own, for working files
    bool startAfterBuild = false; ///< "Start autorun after 'Build and save'"
};

/// The name that a build starts from: `exename` without its ".exe", or the program title while
/// there is none.
std::string InitialAutorunName(const ProjectDocument& document);

/// The whole build, from validation to the finished disc folder. It changes the document:
/// `exename`, empty screen times (become "5"), `TemplateRuntimePath` and `listafajlova`.
/// @throws RuntimeError when a working file cannot be written or read, a name cannot be scrambled,
///         there are more than 20 files, or the build folder is missing or not the user's own.
///         Failures while the output is placed are ignored one by one.
BuildOutcome BuildAutorun(ProjectDocument& document, const BuildRequest& request,
                          BuildEvents& events);

/// Gives the splash and the exit screen their 5 seconds where no time is set.
void FillScreenTimes(ProjectDocument& document);

} // namespace tavmoor
