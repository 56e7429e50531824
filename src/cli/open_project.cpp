#include "open_project.h"

#include "console.h"
#include "core/document/project_reader.h"
#include "core/document/project_reset.h"
#include "core/files/file_store.h"
#include "core/files/program_folder.h"

namespace tavmoor::cli {

namespace {

class WarningCollector final : public ProjectReaderListener {
public:
    explicit WarningCollector(std::vector<std::string>& warnings) : warnings_(warnings) {}
    void ShowMessage(std::string_view text, std::string_view /*title*/) override {
        warnings_.emplace_back(text);
    }

private:
    std::vector<std::string>& warnings_;
};

} // namespace

std::unique_ptr<OpenProject> LoadProject(const std::string& path, const std::string& programFolder,
                                         ButtonRowsAre rows) {
    auto project = std::unique_ptr<OpenProject>(
        new OpenProject{ProfileFile(ReadWholeFile(path)), NewProjectDocument(), {}});
    if (project->file.Entries().empty()) {
        throw CommandFailure(Utf8(path) + " is no project file");
    }
    WorkingValues& working = project->document.Working;
    working.ProjectPath = working.Recent = path;
    WarningCollector listener(project->warnings);
    ReadProjectFrom(project->file, project->document, programFolder, listener);
    if (rows == ButtonRowsAre::Live) {
        MakeButtonsLive(project->document, ButtonRowsIn(project->file));
    }
    return project;
}

std::string ChosenProgramFolder(const std::optional<std::string>& argument) {
    std::string folder = argument ? PathArgument(*argument) : ProgramFolder();
    while (folder.size() > 3 && folder.back() == '\\') {
        folder.pop_back();
    }
    return folder;
}

} // namespace tavmoor::cli
