#include "commands.h"

#include "console.h"
#include "core/files/build_folder.h"
#include "core/files/document_path.h"
#include "core/files/runtime_error.h"
#include "disc/build_driver.h"
#include "open_project.h"
#include "process.h"

#include <optional>

namespace tavmoor::cli {

namespace {

/// Prints the progress, and answers what the command line's flags say.
class BuildProgress final : public BuildEvents {
public:
    explicit BuildProgress(const BuildArguments& arguments) : arguments_(arguments) {}

    void Status(std::string_view text) override { Line(OneLine(text)); }
    void CheckingFile(std::string_view path) override { Line("  checking " + Utf8(path)); }
    void PackingFile(std::string_view path) override { Line("  packing " + Utf8(path)); }
    void PackageProgress(std::uint64_t done, std::uint64_t total) override {
        ShowProgress("package", done, total);
    }
    void PlacingProgress(std::uint64_t done, std::uint64_t total) override {
        ShowProgress("placing", done, total);
    }
    bool Ask(BuildQuestion question, std::string_view /*text*/) override {
        return question == BuildQuestion::ReplaceForeignProgram ? arguments_.replace
                                                                : arguments_.deleteOldFirst;
    }
    /// The way out on an interrupt is that of every failure, so that no working file stays.
    void LetEventsRun() override {
        if (IsInterrupted()) {
            throw CommandFailure("interrupted");
        }
    }
    void StartAutorun(std::string_view path) override { started_ = path; }

    [[nodiscard]] const std::string& Started() const { return started_; }

private:
    void Line(const std::string& text) {
        PrintPart(rewriting_ ? "\n" : "");
        rewriting_ = false;
        PrintLine(text);
    }

    void ShowProgress(const char* what, std::uint64_t done, std::uint64_t total) {
        if (what != shown_) {
            shown_ = what;
            printed_ = -1;
        }
        const auto percent = total == 0 ? 100 : static_cast<int>(done * 100 / total);
        if (percent >= printed_ + step_ || (percent == 100 && printed_ < 100)) {
            printed_ = percent;
            PrintPercentage(percent);
        }
    }

    void PrintPercentage(int percent) {
        const std::string text = "  " + std::string(shown_) + " " + std::to_string(percent) + " %";
        rewriting_ = terminal_ && percent < 100;
        PrintPart((terminal_ ? "\r" : "") + text + (rewriting_ ? "" : "\n"));
    }

    bool terminal_ = OutputIsTerminal();
    int step_ = terminal_ ? 1 : 10;
    std::string_view shown_; ///< what the percentage is of
    int printed_ = -1;
    bool rewriting_ = false; ///< the percentage stands on a line that is not ended
    const BuildArguments& arguments_;
    std::string started_;
};

void RequireNoWarning(const OpenProject& project) {
    if (!project.warnings.empty()) {
        throw CommandFailure(OneLine(project.warnings.front()));
    }
}

/// What the command line says instead of asking.
std::string FailureOf(const BuildOutcome& outcome) {
    std::string text = OneLine(outcome.text);
    if (outcome.declined) {
        text += *outcome.declined == BuildQuestion::ReplaceForeignProgram
                    ? " --replace replaces it."
                    : " --delete-old-first deletes the old one first.";
    }
    return text;
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
    EnsureBuildFolder();
    BuildRequest request;
    request.name = arguments.name ? TextArgument(*arguments.name) : InitialAutorunName(document);
    request.buildFolder = BuildFolder();
    request.startAfterBuild = arguments.run;
    BuildProgress progress(arguments);
    // Cleared only on the way out without an error: the boundary needs it after the unwinding.
    static std::optional<ProjectDocument> kept;
    try {
        const BuildOutcome outcome = BuildAutorun(document, request, progress);
        if (!outcome.IsWhole()) {
            throw CommandFailure(FailureOf(outcome));
        }
    } catch (const RuntimeError&) {
        kept = document;
        openProject = &*kept;
        throw;
    }
    if (arguments.run) {
        StartAutorunProgram(NativePath(progress.Started()));
    }
    PrintLine("Built in " + Utf8(document.CdFolder()));
    return 0;
}

} // namespace tavmoor::cli
