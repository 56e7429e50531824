#include "disc/build_driver.h"

#include "core/document/project_fields.h"
#include "core/document/project_reader.h"
#include "core/files/build_folder.h"
#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "core/text/character_checks.h"
#include "core/text/path_text.h"
#include "core/text/text_case.h"
#include "disc/autorun_inf.h"
#include "disc/marked_programs.h"
#include "disc/runtime_configuration.h"
#include "package/package_format.h"
#include "package/package_writer.h"

#include <algorithm>

namespace tavmoor {

namespace {

using namespace std::chrono_literals;

constexpr std::string_view LineBreak = "\r\n";
constexpr std::string_view ProgramExtension = ".exe";
constexpr auto StatusWait = 300ms;
constexpr auto PlacingWait = 100ms;

// Back colours of the name field.
constexpr ColorValue RefusedNameColor = 0x00FFFF;
constexpr ColorValue AcceptedNameColor = 0xFFFFFF;

/// The icon and the like are small comforts of the disc; no error there stops a build.
void WriteAutorunInfIgnoringErrors(const ProjectDocument& document, const std::string& path) {
    try {
        WriteAutorunInf(document, path);
    } catch (const RuntimeError&) {
        return;
    }
}

bool CanAskLength(const std::string& path) {
    try {
        FileLength(path);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

/// All files of the package in order, with the configuration as the first and the fonts last;
/// empty paths and duplicates are left out.
/// @param withFonts false gives the list that is checked before the fonts join it
std::vector<std::string> PackageFileList(const ProjectDocument& document,
                                         const std::string& buildFolder, bool withFonts) {
    std::vector<std::string> list{WithBackslash(buildFolder) +
                                  std::string(package_format::ConfigurationName)};
    const int last = withFonts ? FontPackageOrder : FontPackageOrder - 1;
    for (std::string& path : PackageFilesOf(document, 1, last)) {
        if (path != list.front()) {
            list.push_back(std::move(path));
        }
    }
    return list;
}

class Build {
public:
    Build(ProjectDocument& document, const BuildRequest& request, BuildEvents& events)
        : document_(document), request_(request), events_(events),
          buildFolder_(WithBackslash(request.buildFolder)),
          cdFolder_(WithBackslash(document.CdFolder())) {}

    BuildOutcome Run() {
        if (const BuildOutcome outcome = Validate(); outcome != BuildOutcome::Built) {
            return outcome;
        }
        TakeName();
        if (!PrepareFiles()) {
            return BuildOutcome::FileUnreadable;
        }
        MakePackage();
        PlaceOutput();
        Finish();
        return BuildOutcome::Built;
    }

private:
    void Status(std::string_view text) {
        events_.Status(text);
        events_.LetEventsRun();
    }

    BuildOutcome Validate() {
        if (!FolderExists(document_.CdFolder())) {
            events_.MarkFolder();
            events_.ShowMessage(document_.CdFolder() + " does not exist!" + std::string(LineBreak) +
                                    "You have to select CD-ROM files folder on your local disk.",
                                "Error...", BuildMessageKind::Critical);
            return BuildOutcome::FolderMissing;
        }
        if (!IsValidName(request_.name)) {
            RefuseName();
            return BuildOutcome::NameRefused;
        }
        if (request_.name.empty()) {
            events_.ColorName(RefusedNameColor);
            events_.ShowMessage("Filename cannot be blank!", "", BuildMessageKind::Plain);
            return BuildOutcome::NameEmpty;
        }
        return BuildOutcome::Built;
    }

    void RefuseName() {
        events_.ColorName(RefusedNameColor);
        events_.ShowMessage(
            "It is highly recomended that filename contains of following characters\r\n"
            "1234567890qwertyuiopasdfghjklzxcvbnmQWERTYUIOPASDFGHJKLZXCVBNM\r\n"
            "Make sure filename does not contain spaces or characters such as |\\''?*<':>+[]/\r\n"
            "\r\n"
            "You want to be sure that your program will work on any computer running Windows "
            "operating system.",
            "", BuildMessageKind::Plain);
        std::string name = request_.name;
        std::replace(name.begin(), name.end(), ' ', '_');
        events_.ReplaceName(name);
    }

    void TakeName() {
        events_.ColorName(AcceptedNameColor);
        document_.OsnovniPodaci.exename = request_.name + std::string(ProgramExtension);
        events_.EnableBuild(false);
        FillScreenTimes(document_);
    }

    bool PrepareFiles() {
        auto& list = document_.Working.listafajlova;
        list.clear();
        Status("Checking files...");
        events_.Wait(StatusWait);
        RequireOwnFolder(buildFolder_);
        ClearBuildFolder();
        WriteRuntimeConfiguration(document_, buildFolder_);
        list = PackageFileList(document_, buildFolder_, false);
        for (const std::string& path : list) {
            events_.CheckingFile(path);
            if (!CanAskLength(path)) {
                Abort(path);
                return false;
            }
        }
        Status("Processing package files...");
        events_.Wait(StatusWait);
        list = PackageFileList(document_, buildFolder_, true);
        return true;
    }

    void Abort(const std::string& path) {
        events_.ShowMessage("There was an error accessing file " + path + std::string(LineBreak) +
                                "Check if the file exist!",
                            "Error in file", BuildMessageKind::Plain);
        Status("Aborted" + std::string(LineBreak) + "There was an error while accessing file " +
               path + ". Check if file exist!");
        events_.EnableBuild(true);
    }

    void MakePackage() {
        events_.PackageWritten(WritePackage(document_.Working.listafajlova, buildFolder_, events_));
        UpdateTemplateRuntimePath(document_);
        CopyFileIgnoringErrors(document_.Working.TemplateRuntimePath, Built(ProgramName()));
        DeleteFileIgnoringErrors(Built(package_format::ConfigurationName));
        Status("The autorun program has been created!");
    }

    /// Nothing of the build folder is needed afterwards, so that files are moved where they can be.
    void PlaceOutput() {
        DeleteMarkedPrograms(cdFolder_);
        DeleteFileIgnoringErrors(Placed(package_format::PackageName));
        if (!SamePath(document_.OsnovniPodaci.Ikona, Placed(IconName))) {
            DeleteFileIgnoringErrors(Placed(IconName)); // else it is the author's only copy
        }
        DeleteFileIgnoringErrors(Placed("Autorun.inf"));
        events_.Wait(PlacingWait);
        MoveFileIgnoringErrors(Built(ProgramName()), Placed(ProgramName()));
        events_.Wait(PlacingWait);
        MoveFileIgnoringErrors(Built(package_format::PackageName),
                               Placed(package_format::PackageName));
        events_.Wait(PlacingWait);
        CopyFileIgnoringErrors(document_.OsnovniPodaci.Ikona, Placed(IconName));
        events_.Wait(PlacingWait);
        WriteAutorunInfIgnoringErrors(document_, Placed("Autorun.inf"));
        events_.LetEventsRun();
        events_.Wait(PlacingWait);
        if (!FileExists(Placed(ProgramName()))) {
            CopyFileIgnoringErrors(document_.Working.TemplateRuntimePath, Placed(ProgramName()));
        }
    }

    void Finish() {
        if (request_.startAfterBuild) {
            Status("Starting autorun...");
            events_.StartAutorun(Placed(ProgramName()));
            Status("Completed...");
        }
        ClearBuildFolder();
        events_.EnableBuild(true);
    }

    void ClearBuildFolder() {
        DeleteFileIgnoringErrors(Built(package_format::PackageName));
        DeleteFileIgnoringErrors(Built(package_format::ConfigurationName));
        DeleteMarkedPrograms(buildFolder_);
    }

    [[nodiscard]] const std::string& ProgramName() const { return document_.OsnovniPodaci.exename; }
    [[nodiscard]] std::string Built(std::string_view name) const {
        return buildFolder_ + std::string(name);
    }
    [[nodiscard]] std::string Placed(std::string_view name) const {
        return cdFolder_ + std::string(name);
    }

    ProjectDocument& document_;
    const BuildRequest& request_;
    BuildEvents& events_;
    std::string buildFolder_;
    std::string cdFolder_;
};

} // namespace

std::string InitialAutorunName(const ProjectDocument& document) {
    const MainTexts& texts = document.OsnovniPodaci;
    if (texts.exename.empty()) {
        return texts.Tasknaslov;
    }
    const bool full = EndsWithoutCase(texts.exename, ProgramExtension);
    return texts.exename.substr(0, texts.exename.size() - (full ? ProgramExtension.size() : 0));
}

BuildOutcome BuildAutorun(ProjectDocument& document, const BuildRequest& request,
                          BuildEvents& events) {
    return Build(document, request, events).Run();
}

void FillScreenTimes(ProjectDocument& document) {
    for (ScreenSpec* screen : {&document.Izlaz, &document.Uvod}) {
        if (screen->Vreme.empty()) {
            screen->Vreme = UsualScreenSecondsText;
        }
    }
}

} // namespace tavmoor
