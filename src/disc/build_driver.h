#pragma once

#include "core/document/project_document.h"
#include "disc/build_events.h"
#include "disc/build_outcome.h"

#include <string>
#include <string_view>

namespace tavmoor {

struct BuildRequest {
    std::string name;             ///< the autorun's name without ".exe"
    std::string buildFolder;      ///< a folder of the user's own; work happens in a fresh one in it
    bool startAfterBuild = false; ///< "Start autorun after 'Build and save'"
};

/// The name that a build starts from: `exename` without its ".exe", or the program title while
/// there is none.
std::string InitialAutorunName(const ProjectDocument& document);

/// The whole build, from validation to the finished disc folder. It changes the document:
/// `exename`, empty screen times (become "5"), `TemplateRuntimePath` and `listafajlova`. The disc's
/// folder is held from the first look to the last rename. What goes wrong before the first rename
/// leaves it as it was.
/// @throws RuntimeError when a working file cannot be written or read, a name cannot be scrambled,
///         or there are more than 20 files; a disk that is full is an outcome
BuildOutcome BuildAutorun(ProjectDocument& document, const BuildRequest& request,
                          BuildEvents& events);

/// Gives the splash and the exit screen their 5 seconds where no time is set.
void FillScreenTimes(ProjectDocument& document);

} // namespace tavmoor
