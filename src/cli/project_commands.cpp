#include "commands.h"

#include "console.h"
#include "core/document/field_text.h"
#include "core/document/field_writer.h"
#include "core/document/project_reader.h"
#include "core/document/project_reset.h"
#include "core/document/project_writer.h"
#include "core/files/file_store.h"
#include "disc/build_driver.h"
#include "disc/project_check.h"
#include "open_project.h"

#include <nlohmann/json.hpp>

namespace tavmoor::cli {

namespace {

std::unique_ptr<OpenProject> Load(const std::string& project,
                                  const std::optional<std::string>& programFolder,
                                  ButtonRowsAre rows) {
    auto opened = LoadProject(PathArgument(project), ChosenProgramFolder(programFolder), rows);
    for (const std::string& warning : opened->warnings) {
        PrintError("warning: " + OneLine(warning));
    }
    return opened;
}

/// A new project as it comes back from its file: some empty fields are written with a default.
std::unique_ptr<ProjectDocument> SavedNewProject() {
    auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
    const ProfileFile file(ProjectText(*document));
    class Silent final : public ProjectReaderListener {
    } silent;
    ReadProjectFrom(file, *document, "", silent);
    return document;
}

/// Calls `take` with each stored field whose value is not that of a new project.
template <typename Take>
void ForEachChange(const ProjectDocument& document, Take take) {
    const auto fresh = SavedNewProject();
    for (const FieldBlock& block : ProjectBlocks()) {
        for (std::size_t row = block.first; row <= block.last; ++row) {
            for (const FieldSpec& field : block.fields) {
                const FieldPlace place{&block, &field, row};
                if (!field.writeOnly && field.StandsIn(FieldFile::Project) &&
                    FieldText(document, place) != FieldText(*fresh, place)) {
                    take(place);
                }
            }
        }
    }
}

nlohmann::ordered_json JsonOf(ConstValueRef value) {
    if (const auto* const* text = std::get_if<const std::string*>(&value)) {
        return Utf8(**text);
    }
    return std::visit(
        [](const auto* held) -> nlohmann::ordered_json {
            if constexpr (std::is_same_v<decltype(held), const std::string*>) {
                return nullptr;
            } else {
                return *held;
            }
        },
        value);
}

void PrintJson(const ProjectDocument& document) {
    nlohmann::ordered_json json = nlohmann::ordered_json::object();
    ForEachChange(document, [&](const FieldPlace& place) {
        json[std::string(place.block->section)][KeyOf(place)] = JsonOf(place.Read(document));
    });
    PrintLine(json.dump(2));
}

void PrintText(const ProjectDocument& document) {
    std::string_view section;
    ForEachChange(document, [&](const FieldPlace& place) {
        if (place.block->section != section) {
            section = place.block->section;
            PrintLine("[" + std::string(section) + "]");
        }
        PrintLine(KeyOf(place) + "=" + OneLine(FieldText(document, place)));
    });
}

/// The reader's buffer cuts long values; what is written then is shorter than what was read.
void WarnOfCutValues(const ProfileFile& file) {
    for (const ProfileFile::Entry& entry : file.Entries()) {
        if (entry.value.size() > ProfileFile::MaximumValue) {
            PrintError("warning: [" + OneLine(entry.section) + "] " + OneLine(entry.key) +
                       " is cut after " + std::to_string(ProfileFile::MaximumValue) +
                       " characters");
        }
    }
}

} // namespace

int ResaveCommand(const ResaveArguments& arguments) {
    const auto project = Load(arguments.input, arguments.programFolder,
                              arguments.asRead ? ButtonRowsAre::AsRead : ButtonRowsAre::Live);
    WarnOfCutValues(project->file);
    WriteProject(project->document, PathArgument(arguments.output));
    return 0;
}

int ConfigurationCommand(const ProjectArguments& arguments) {
    const auto project = Load(arguments.project, arguments.programFolder, ButtonRowsAre::Live);
    FillScreenTimes(project->document);
    WriteWholeFile(PathArgument(arguments.output),
                   FieldFileText(project->document, FieldFile::Configuration));
    return 0;
}

int ShowCommand(const ProjectArguments& arguments) {
    const auto project = Load(arguments.project, arguments.programFolder, ButtonRowsAre::Live);
    if (arguments.json) {
        PrintJson(project->document);
    } else {
        PrintText(project->document);
    }
    return 0;
}

int CheckCommand(const ProjectArguments& arguments) {
    const std::string programFolder = ChosenProgramFolder(arguments.programFolder);
    const auto project =
        LoadProject(PathArgument(arguments.project), programFolder, ButtonRowsAre::Live);
    const auto findings = CheckProject(project->document, project->file, programFolder);
    for (const Finding& finding : findings) {
        PrintLine(OneLine(finding.text));
    }
    return findings.empty() ? 0 : 1;
}

} // namespace tavmoor::cli
