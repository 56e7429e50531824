#include "disc/build_driver.h"

#include "core/disk/folder_lock.h"
#include "core/disk/volume_traits.h"
#include "core/document/project_fields.h"
#include "core/document/project_reader.h"
#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "core/files/work_folder.h"
#include "core/text/character_checks.h"
#include "core/text/code_page.h"
#include "core/text/path_text.h"
#include "core/text/text_case.h"
#include "disc/autorun_inf.h"
#include "disc/build_checks.h"
#include "disc/disc_room.h"
#include "disc/output_placing.h"
#include "disc/runtime_configuration.h"
#include "package/package_format.h"
#include "package/package_writer.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>

namespace tavmoor {

namespace {

using namespace std::chrono_literals;

constexpr std::string_view LineBreak = "\r\n";
constexpr std::string_view ProgramExtension = ".exe";
constexpr auto StatusWait = 300ms;

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
          cdFolder_(WithBackslash(document.CdFolder())) {}

    BuildOutcome Run() {
        constexpr Step steps[] = {&Build::Validate,   &Build::HoldDisc,     &Build::CheckTemplate,
                                  &Build::LookAtDisc, &Build::PrepareFiles, &Build::CheckPackage,
                                  &Build::MakeRoom,   &Build::MakePackage,  &Build::StageOutput,
                                  &Build::PlaceOutput};
        for (const Step step : steps) {
            if (auto ended = (this->*step)()) {
                return std::move(*ended);
            }
        }
        return Finish();
    }

private:
    /// One part of the build; what it returns ends it.
    using Step = std::optional<BuildOutcome> (Build::*)();

    void Status(std::string_view text) {
        events_.Status(text);
        events_.LetEventsRun();
    }

    static std::optional<BuildOutcome> RefusedFor(std::optional<std::string> objection) {
        return objection ? std::optional(Refused(std::move(*objection))) : std::nullopt;
    }

    std::optional<BuildOutcome> Validate() {
        if (!FolderExists(document_.CdFolder())) {
            return FolderMissing(document_.CdFolder());
        }
        if (!IsValidName(request_.name)) {
            return NameRefused(request_.name);
        }
        if (request_.name.empty()) {
            return NameEmpty();
        }
        document_.OsnovniPodaci.exename = request_.name + std::string(ProgramExtension);
        FillScreenTimes(document_);
        UpdateTemplateRuntimePath(document_);
        return std::nullopt;
    }

    std::optional<BuildOutcome> HoldDisc() {
        disc_ = NativePath(document_.CdFolder());
        lock_ = std::make_unique<FolderLock>(disc_);
        if (lock_->Result() != FolderLock::State::Taken) {
            return std::nullopt;
        }
        return Busy(document_.CdFolder(), lock_->Holder());
    }

    std::optional<BuildOutcome> CheckTemplate() {
        if (auto objection = ProgramNameObjection(ProgramName())) {
            return RefusedFor(std::move(objection));
        }
        if (auto objection = WorkFolderObjection(document_, request_.buildFolder)) {
            return RefusedFor(std::move(objection));
        }
        return RefusedFor(TemplateObjection(document_));
    }

    std::optional<BuildOutcome> LookAtDisc() {
        try {
            old_ = SurveyDisc(disc_, ProgramName());
        } catch (const RuntimeError& error) {
            return Refused(error.what());
        }
        if (auto objection = OldOutputObjection(document_, old_)) {
            return RefusedFor(std::move(objection));
        }
        if (const OldOutput* icon = IconInItsPlace(document_, old_)) {
            iconStays_ = true;
            old_.erase(old_.begin() + (icon - old_.data()));
        }
        if (auto declined = AskForForeignProgram()) {
            return declined;
        }
        DeleteLeftFreshFilesIgnoringErrors(disc_);
        return CheckUse();
    }

    std::optional<BuildOutcome> AskForForeignProgram() {
        const auto foreign = std::find_if(old_.begin(), old_.end(),
                                          [](const OldOutput& output) { return output.isForeign; });
        if (foreign == old_.end()) {
            return std::nullopt;
        }
        return Ask(BuildQuestion::ReplaceForeignProgram,
                   ShownPath(foreign->path.filename()) +
                       " exists in CD-ROM files folder and was not made by this program.",
                   "Replace it?");
    }

    std::optional<BuildOutcome> Ask(BuildQuestion question, const std::string& problem,
                                    const std::string& offer) {
        return events_.Ask(question, problem + " " + offer)
                   ? std::nullopt
                   : std::optional(Declined(question, problem));
    }

    std::optional<BuildOutcome> CheckUse() {
        auto objection = InUseObjection(old_);
        return objection ? std::optional(InUse(std::move(*objection))) : std::nullopt;
    }

    std::optional<BuildOutcome> PrepareFiles() {
        auto& list = document_.Working.listafajlova;
        list.clear();
        Status("Checking files...");
        events_.Wait(StatusWait);
        try {
            work_ = std::make_unique<WorkFolder>(request_.buildFolder);
        } catch (const RuntimeError& error) {
            return Refused(
                "The temporary compress folder cannot be used. Choose another one in the "
                "program settings." +
                std::string(LineBreak) + error.what());
        }
        WriteRuntimeConfiguration(document_, work_->Path());
        list = PackageFileList(document_, work_->Path(), false);
        for (const std::string& path : list) {
            events_.CheckingFile(path);
            if (!CanAskLength(path)) {
                return Abort(path);
            }
        }
        return std::nullopt;
    }

    BuildOutcome Abort(const std::string& path) {
        Status("Aborted" + std::string(LineBreak) + "There was an error while accessing file " +
               path + ". Check if file exist!");
        return FileUnreadable(path);
    }

    std::optional<BuildOutcome> CheckPackage() {
        Status("Processing package files...");
        events_.Wait(StatusWait);
        auto& list = document_.Working.listafajlova;
        list = PackageFileList(document_, work_->Path(), true);
        if (auto objection = PackedNameObjection(list)) {
            return RefusedFor(std::move(objection));
        }
        wanted_.package = PackageLength(list);
        wanted_.others = FileLengthOrZero(document_.Working.TemplateRuntimePath) +
                         FileLengthOrZero(document_.OsnovniPodaci.Ikona) +
                         AutorunInfText(document_).size();
        const auto most = VolumeTraitsOf(disc_).largestFile;
        if (most && wanted_.package > *most) {
            return Refused("The package of " + MegabytesOf(wanted_.package) +
                           " MB is too large for the file system of the CD-ROM files folder, "
                           "which holds files of less than 4096 MB.");
        }
        return std::nullopt;
    }

    std::optional<BuildOutcome> MakeRoom() {
        const auto shortage = ShortageOf(work_->NativePath(), disc_, wanted_);
        if (!shortage) {
            return std::nullopt;
        }
        std::uint64_t old = 0;
        for (const OldOutput& output : old_) {
            old += output.bytes;
        }
        if (!shortage->onDisc || old < shortage->bytes) {
            return TooLittle(*shortage);
        }
        if (auto declined = Ask(BuildQuestion::DeleteOldFirst,
                                "There is not enough room for the new autorun beside the old one "
                                "(" +
                                    MegabytesOf(shortage->bytes) + " MB more).",
                                "Delete the old one first?")) {
            return declined;
        }
        if (const auto left = OutputPlacing::Delete(old_); !left.empty()) {
            return Refused("The old autorun cannot be deleted: " + Joined(left));
        }
        old_.clear();
        return std::nullopt;
    }

    [[nodiscard]] BuildOutcome TooLittle(const Shortage& shortage) const {
        return NoRoom(shortage.onDisc ? "CD-ROM files folder " + document_.CdFolder()
                                      : "temporary compress folder " + request_.buildFolder,
                      shortage.bytes);
    }

    /// A disk may fill up, or have limits of its own, after it said that there is room.
    [[nodiscard]] BuildOutcome TooLittleAfterAll(bool onDisc) const {
        const auto shortage = ShortageOf(work_->NativePath(), disc_, wanted_);
        return TooLittle(shortage && shortage->onDisc == onDisc ? *shortage : Shortage{0, onDisc});
    }

    std::optional<BuildOutcome> MakePackage() {
        try {
            package_ = WritePackage(document_.Working.listafajlova, work_->Path(), events_);
        } catch (const RuntimeError& error) {
            if (error.Number() != ErrorNumber::DiskFull) {
                throw;
            }
            return TooLittleAfterAll(false);
        }
        return std::nullopt;
    }

    std::optional<BuildOutcome> StageOutput() {
        try {
            output_.emplace(disc_, events_);
            output_->StageCopy(ProgramName(), document_.Working.TemplateRuntimePath);
            output_->StagePackage(std::string(package_format::PackageName),
                                  work_->NativePath() / "autorun.arn", package_);
            if (!document_.OsnovniPodaci.Ikona.empty() && !iconStays_) {
                output_->StageCopy(std::string(IconName), document_.OsnovniPodaci.Ikona);
            }
            output_->StageText(std::string(InfName), AutorunInfText(document_));
        } catch (const RuntimeError& error) {
            return error.Number() == ErrorNumber::DiskFull
                       ? TooLittleAfterAll(true)
                       : Refused("The autorun could not be written: " + std::string(error.what()));
        }
        return CheckUse();
    }

    std::optional<BuildOutcome> PlaceOutput() {
        try {
            output_->Place();
        } catch (const RuntimeError& error) {
            return NotPlaced(error.what(), output_->Placed());
        }
        Status("The autorun program has been created!");
        return std::nullopt;
    }

    BuildOutcome Finish() {
        const std::vector<std::string> left = OutputPlacing::Delete(old_);
        BuildOutcome outcome;
        if (!left.empty()) {
            outcome = OlderStays(left);
        } else if (request_.startAfterBuild) {
            Status("Starting autorun...");
            events_.StartAutorun(cdFolder_ + ProgramName());
            Status("Completed...");
        }
        outcome.placed = output_->Placed();
        outcome.package = package_;
        return outcome;
    }

    [[nodiscard]] const std::string& ProgramName() const { return document_.OsnovniPodaci.exename; }

    ProjectDocument& document_;
    const BuildRequest& request_;
    BuildEvents& events_;
    std::string cdFolder_;
    std::filesystem::path disc_;
    std::unique_ptr<FolderLock> lock_; ///< on the disc's folder
    std::vector<OldOutput> old_;       ///< what is replaced or deleted
    bool iconStays_ = false;
    std::unique_ptr<WorkFolder> work_;
    RoomWanted wanted_;
    BuiltPackage package_;
    std::optional<OutputPlacing> output_;
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
