#include "commands.h"

#include "build/build_driver.h"
#include "build/output_check.h"
#include "console.h"
#include "core/document_path.h"
#include "core/runtime_error.h"
#include "open_project.h"

#include <cstdio>
#include <optional>

namespace tavmoor::cli {

namespace {

namespace fs = std::filesystem;

/// The build folder of one run, gone with it.
class WorkingFolder {
public:
    WorkingFolder() : path_(MakePrivateTemporaryFolder()) {}
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;
    ~WorkingFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    [[nodiscard]] std::string Path() const { return DocumentPath(path_); }

private:
    fs::path path_;
};

/// Prints the progress; messages that a window would show become the failure of the command.
class BuildProgress final : public BuildEvents {
public:
    void Status(std::string_view text) override { PrintLine(OneLine(text)); }
    void ShowMessage(std::string_view text, std::string_view /*title*/,
                     BuildMessageKind /*kind*/) override {
        failure_ = OneLine(text);
    }
    void CheckingFile(std::string_view path) override { PrintLine("  checking " + Utf8(path)); }
    void PackingFile(std::string_view path) override { PrintLine("  packing " + Utf8(path)); }
    void PackageProgress(std::uint64_t done, std::uint64_t total) override {
        const auto percent = total == 0 ? 100 : static_cast<int>(done * 100 / total);
        if (percent >= printed_ + step_ || (percent == 100 && printed_ < 100)) {
            printed_ = percent;
            PrintPercentage(percent);
        }
    }
    void StartAutorun(std::string_view path) override { started_ = path; }

    [[nodiscard]] const std::string& Failure() const { return failure_; }
    [[nodiscard]] const std::string& Started() const { return started_; }

private:
    void PrintPercentage(int percent) const {
        const bool rewrite = terminal_ && percent < 100;
        std::printf("%s  package %3d %%%s", terminal_ ? "\r" : "", percent, rewrite ? "" : "\n");
        std::fflush(stdout);
    }

    bool terminal_ = OutputIsTerminal();
    int step_ = terminal_ ? 1 : 10;
    int printed_ = -1;
    std::string failure_;
    std::string started_;
};

void RequireNoWarning(const OpenProject& project) {
    if (!project.warnings.empty()) {
        throw CommandFailure(OneLine(project.warnings.front()));
    }
}

void RequirePlaced(const ProjectDocument& document) {
    const auto faults = FaultsOfPlacedOutput(document);
    for (const std::string& fault : faults) {
        PrintError(OneLine(fault));
    }
    if (!faults.empty()) {
        throw CommandFailure("the disc folder does not hold what was built");
    }
}

} // namespace

int BuildCommand(const BuildArguments& arguments, const ProjectDocument*& openProject) {
    const std::string programFolder = ChosenProgramFolder(arguments.programFolder);
    const auto project =
        LoadProject(PathArgument(arguments.project), programFolder, ButtonRowsAre::Live);
    RequireNoWarning(*project);
    ProjectDocument& document = project->document;
    if (!arguments.cdFolder.empty()) {
        document.OsnovnaPodesavanja.GlavniDirektorijum = PathArgument(arguments.cdFolder);
    }
    if (document.OsnovnaPodesavanja.Sablon.empty()) {
        throw CommandFailure("the project has no template");
    }
    const WorkingFolder folder;
    BuildRequest request;
    request.name =
        arguments.name.empty() ? InitialAutorunName(document) : TextArgument(arguments.name);
    request.buildFolder = folder.Path();
    request.startAfterBuild = arguments.run;
    BuildProgress progress;
    // Cleared only on the way out without an error: the boundary needs it after the unwinding.
    static std::optional<ProjectDocument> kept;
    try {
        if (BuildAutorun(document, request, progress) != BuildOutcome::Built) {
            throw CommandFailure(progress.Failure());
        }
    } catch (const RuntimeError&) {
        kept = document;
        openProject = &*kept;
        throw;
    }
    RequirePlaced(document);
    if (arguments.run) {
        StartAutorunProgram(NativePath(progress.Started()));
    }
    PrintLine("Built in " + Utf8(document.CdFolder()));
    return 0;
}

} // namespace tavmoor::cli
