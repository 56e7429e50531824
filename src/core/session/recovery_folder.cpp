#include "core/session/recovery_folder.h"

#include "core/document/field_text.h"
#include "core/document/project_fields.h"
#include "core/document/project_reader.h"
#include "core/document/project_reset.h"
#include "core/document/project_writer.h"
#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "core/files/program_folder.h"
#include "core/files/runtime_error.h"
#include "core/text/path_text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <memory>
#include <tuple>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view BesideMark = ".recovered";
constexpr std::size_t CopiesKept = 20;

/// A path at which nothing lies yet: an older recovery file may hold the only copy of some work.
std::string FreePath(const std::string& start) {
    const std::string ending = std::string(BesideMark).append(words::ProjectEnding);
    std::string path = start + ending;
    for (int number = 2; FileExists(path); ++number) {
        path.assign(start).append("-").append(std::to_string(number)).append(ending);
    }
    return path;
}

/// Nothing where the project's folder cannot be written, which may be the very error that ends the
/// program.
std::optional<std::string> WriteBesideProject(const ProjectDocument& document) {
    std::string start = document.Working.ProjectPath;
    if (start.ends_with(words::ProjectEnding)) {
        start.resize(start.size() - words::ProjectEnding.size());
    }
    if (start.empty()) {
        return std::nullopt;
    }
    try {
        std::string path = FreePath(start);
        WriteProject(document, path);
        return path;
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

/// @return the folder in document form
std::string EnsureRecoveryFolder() {
    const fs::path native = RecoveryFolder();
    std::string folder = DocumentPath(native);
    std::error_code error;
    fs::create_directories(native, error);
    if (error) {
        throw FileError(error, folder);
    }
    return folder;
}

std::string ProjectName(const ProjectDocument& document) {
    std::string name(FileNameOf(document.Working.ProjectPath));
    if (name.ends_with(words::ProjectEnding)) {
        name.resize(name.size() - words::ProjectEnding.size());
    }
    return name.empty() ? "unsaved" : name;
}

std::string DateAndTime(std::chrono::system_clock::time_point time) {
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    const std::tm* parts = std::localtime(&seconds); // one thread alone works on projects
    if (parts == nullptr) {
        return std::to_string(seconds) + " ";
    }
    std::array<char, 32> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H-%M-%S ", parts);
    return {text.data(), length};
}

/// A name whose date and time no other copy has: copies of one second are told apart by theirs.
std::string FreeCopyName(const std::string& folder, const std::string& projectName) {
    const auto names = FileNamesIn(folder, words::ProjectEnding);
    auto time = std::chrono::system_clock::now();
    std::string start = DateAndTime(time);
    while (std::any_of(names.begin(), names.end(),
                       [&](const std::string& name) { return name.starts_with(start); })) {
        time += std::chrono::seconds(1);
        start = DateAndTime(time);
    }
    return start + projectName + std::string(words::ProjectEnding);
}

/// A file that the user put into the folder under another name is none of the copies.
bool IsCopyName(std::string_view name) {
    constexpr std::string_view Pattern = "0000-00-00 00-00-00 ";
    return name.size() > Pattern.size() &&
           std::equal(Pattern.begin(), Pattern.end(), name.begin(), [](char wanted, char found) {
               return wanted == '0' ? found >= '0' && found <= '9' : found == wanted;
           });
}

struct Copy {
    fs::file_time_type written;
    std::string path;
    bool operator<(const Copy& other) const {
        return std::tie(written, path) < std::tie(other.written, other.path);
    }
};

/// All copies from the oldest to the newest; equal times go by name.
std::vector<Copy> CopiesByAge() {
    std::vector<Copy> copies;
    const auto folder = FindDocumentPath(RecoveryFolder());
    if (!folder) {
        return copies;
    }
    for (const std::string& name : FileNamesIn(*folder, words::ProjectEnding)) {
        if (!IsCopyName(name)) {
            continue;
        }
        const std::string path = WithBackslash(*folder) + name;
        std::error_code error;
        const auto written = fs::last_write_time(NativePath(path), error);
        if (!error) {
            copies.push_back({written, path});
        }
    }
    std::sort(copies.begin(), copies.end());
    return copies;
}

void DeleteOldCopies() {
    const auto copies = CopiesByAge();
    for (std::size_t i = 0; i + CopiesKept < copies.size(); ++i) {
        DeleteFileIgnoringErrors(copies[i].path);
    }
}

bool RowIsBlank(const ProjectDocument& document, const ProjectDocument& blank,
                const FieldBlock& block, std::size_t row) {
    return std::all_of(block.fields.begin(), block.fields.end(), [&](const FieldSpec& field) {
        const FieldPlace place{&block, &field, row};
        return FieldText(document, place) == FieldText(blank, place);
    });
}

/// The document as a copy has it. Until the canvas has been stored once, a save leaves the buttons
/// out; whoever opens a copy must not lose them.
std::unique_ptr<ProjectDocument> WithButtonsLive(const ProjectDocument& document) {
    auto copy = std::make_unique<ProjectDocument>(document);
    auto& buttons = copy->NapredniSabloni.Dugme;
    const bool stored = std::any_of(buttons.begin(), buttons.end(),
                                    [](const ButtonObject& button) { return button.DugmeExists; });
    const auto place = FindField("Napredni sabloni", "DugmeX(0)");
    if (stored || !place) {
        return copy;
    }
    const auto blank = std::make_unique<ProjectDocument>(NewProjectDocument());
    std::bitset<ButtonRows> rows;
    for (std::size_t row = place->block->first; row <= place->block->last; ++row) {
        rows[row] = !RowIsBlank(document, *blank, *place->block, row);
    }
    MakeButtonsLive(*copy, rows);
    return copy;
}

} // namespace

fs::path RecoveryFolder() {
    return ProgramDataFolder() / "recovery";
}

bool IsInRecoveryFolder(const std::string& path) {
    const auto folder = FindNativePath(FolderOf(path));
    std::error_code error; // a folder that does not exist holds no file
    return folder && fs::equivalent(*folder, RecoveryFolder(), error);
}

std::string WriteRecoveryCopy(const ProjectDocument& document) {
    const std::string folder = EnsureRecoveryFolder();
    std::string path = WithBackslash(folder) + FreeCopyName(folder, ProjectName(document));
    WriteProject(*WithButtonsLive(document), path);
    DeleteOldCopies();
    return path;
}

std::string WriteRecoveryFile(const ProjectDocument& document) {
    const auto path = WriteBesideProject(document);
    return path ? *path : WriteRecoveryCopy(document);
}

std::optional<std::string> NewestRecoveryCopy(fs::file_time_type since) {
    const auto copies = CopiesByAge();
    return copies.empty() || copies.back().written < since ? std::nullopt
                                                           : std::optional(copies.back().path);
}

void RecoveryCopy::Rest(const ProjectDocument& document) {
    if (SamePath(path_, document.Working.ProjectPath)) {
        path_.clear(); // saved over: it is the project's own file now
    }
    DeleteCopy();
    textAtRest_ = ProjectText(document);
}

void RecoveryCopy::Adopt(const std::string& copy, const ProjectDocument& document) {
    textAtRest_ = ""; // no project has this text
    path_ = copy;
    copied_ = ProjectText(document);
    if (const auto native = FindNativePath(copy)) {
        std::error_code ignored; // an older time only hides it after a second crash
        fs::last_write_time(*native, fs::file_time_type::clock::now(), ignored);
    }
}

std::string RecoveryCopy::Keep(const ProjectDocument& document) {
    if (!textAtRest_) {
        return "";
    }
    std::string text = ProjectText(document);
    if (text == *textAtRest_) {
        DeleteCopy();
    } else if (path_.empty() || text != copied_ || !FileExists(path_)) {
        std::string path = WriteRecoveryCopy(document);
        DeleteCopy();
        path_ = std::move(path);
        copied_ = std::move(text);
    }
    return path_;
}

std::string RecoveryCopy::KeepAndLeave(const ProjectDocument& document) {
    std::string path = Keep(document);
    *this = RecoveryCopy();
    return path;
}

void RecoveryCopy::KeepAndLeaveIgnoringErrors(const ProjectDocument& document) {
    KeepIgnoringErrors(document);
    *this = RecoveryCopy();
}

void RecoveryCopy::KeepIgnoringErrors(const ProjectDocument& document) {
    try {
        Keep(document);
    } catch (const RuntimeError&) {
        return;
    }
}

void RecoveryCopy::DeleteCopy() {
    if (!path_.empty()) {
        DeleteFileIgnoringErrors(path_);
    }
    path_.clear();
    copied_.clear();
}

} // namespace tavmoor
