#pragma once

#include "core/document/project_document.h"

#include <optional>
#include <string>

namespace tavmoor::cli {

// The commands of tavmoor-cli. Arguments are UTF-8 as typed; each returns the exit code, 0 only
// when all that was asked for was done, and throws CommandFailure, PackageError or RuntimeError.

struct BuildArguments {
    std::string project;
    std::optional<std::string> cdFolder;
    std::optional<std::string> name;
    std::optional<std::string> programFolder;
    bool run = false;
    bool replace = false;        ///< a program of somebody else that has the autorun's name
    bool deleteOldFirst = false; ///< where there is too little room beside it
};
/// @param openProject is set to the project while it is open, for the boundary that saves it when a
///        run-time error ends the program
int BuildCommand(const BuildArguments& arguments, const ProjectDocument*& openProject);

struct ResaveArguments {
    std::string input;
    std::string output;
    std::optional<std::string> programFolder;
    bool asRead = false;
};
int ResaveCommand(const ResaveArguments& arguments);

struct ProjectArguments {
    std::string project;
    std::string output;
    std::optional<std::string> programFolder;
    bool json = false;
};
int ConfigurationCommand(const ProjectArguments& arguments);
int ShowCommand(const ProjectArguments& arguments);
int CheckCommand(const ProjectArguments& arguments);

int PackageListCommand(const std::string& file);
int PackageExtractCommand(const std::string& file, const std::string& folder);

int TemplatesCommand(const std::optional<std::string>& programFolder);

} // namespace tavmoor::cli
