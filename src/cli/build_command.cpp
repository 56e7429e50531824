#include "commands.h"

#include "console.h"
#include "core/files/document_path.h"
#include "core/files/runtime_error.h"
#include "disc/build_driver.h"
#include "disc/output_check.h"
#include "open_project.h"
#include "process.h"

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
    void Status(std::string_view text) override { Line(OneLine(text)); }
    void ShowMessage(std::string_view text, std::string_view /*title*/,
                     BuildMessageKind /*kind*/) override {
        failure_ = OneLine(text);
    }
    void CheckingFile(std::string_view path) override { Line("  checking " + Utf8(path)); }
    void PackingFile(std::string_view path) override { Line("  packing " + Utf8(path)); }
    void PackageProgress(std::uint64_t done, std::uint64_t total) override {
        const auto percent = total == 0 ? 100 : static_cast<int>(done * 100 / total);
        if (percent >= printed_ + step_ || (percent == 100 && printed_ < 100)) {
            printed_ = percent;
            PrintPercentage(percent);
        }
    }
    /// The way out on an interrupt is that of every failure, so that no working file stays.
    void LetEventsRun() override {
        if (IsInterrupted()) {
            throw CommandFailure("interrupted");
        }
    }
    void PackageWritten(const BuiltPackage& package) override { package_ = package; }
    void StartAutorun(std::string_view path) override { started_ = path; }

    [[nodiscard]] const std::string& Failure() const { return failure_; }
    [[nodiscard]] const BuiltPackage& Package() const { return package_; }
    [[nodiscard]] const std::string& Started() const { return started_; }

private:
    void Line(const std::string& text) {
        PrintPart(rewriting_ ? "\n" : "");
        rewriting_ = false;
        PrintLine(text);
    }

    void PrintPercentage(int percent) {
        const std::string text = "  package " + std::to_string(percent) + " %";
        rewriting_ = terminal_ && percent < 100;
        PrintPart((terminal_ ? "\r" : "") + text + (rewriting_ ? "" : "\n"));
    }

    bool terminal_ = OutputIsTerminal();
    int step_ = terminal_ ? 1 : 10;
    int printed_ = -1;
    bool rewriting_ = false; ///< the percentage stands on a line that is not ended
    BuiltPackage package_;
    std::string failure_;
    std::string started_;
};

void RequireNoWarning(const OpenProject& project) {
    if (!project.warnings.empty()) {
        throw CommandFailure(OneLine(project.warnings.front()));
    }
}

void RequirePlaced(const ProjectDocument& document, const BuiltPackage& package) {
    const auto faults = FaultsOfPlacedOutput(document, package);
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
    if (arguments.cdFolder) {
        document.OsnovnaPodesavanja.GlavniDirektorijum = PathArgument(*arguments.cdFolder);
    }
    if (document.CdFolder().empty()) {
        throw CommandFailure("the project names no CD-ROM files folder: give one with --cd-folder");
    }
    if (document.OsnovnaPodesavanja.Sablon.empty()) {
        throw CommandFailure("the project has no template");
    }
    CatchInterrupts();
    const WorkingFolder folder;
    BuildRequest request;
    request.name = arguments.name ? TextArgument(*arguments.name) : InitialAutorunName(document);
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
    RequirePlaced(document, progress.Package());
    if (arguments.run) {
        StartAutorunProgram(NativePath(progress.Started()));
    }
    PrintLine("Built in " + Utf8(document.CdFolder()));
    return 0;
}

} // namespace tavmoor::cli
