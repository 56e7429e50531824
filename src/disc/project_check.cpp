#include "disc/project_check.h"

#include "core/document/project_fields.h"
#include "core/files/file_store.h"
#include "core/text/character_checks.h"
#include "core/text/code_page.h"
#include "core/text/path_text.h"
#include "core/text/text_case.h"
#include "disc/build_driver.h"
#include "package/name_scrambling.h"
#include "package/package_format.h"

#include <algorithm>
#include <string_view>

namespace tavmoor {

namespace {

class Check {
public:
    Check(const ProjectDocument& document, const ProfileFile& file, std::string programFolder)
        : document_(document), file_(file), programFolder_(std::move(programFolder)) {}

    std::vector<Finding> Run() {
        CheckFolder();
        CheckTemplate();
        CheckName();
        CheckFiles();
        CheckValues();
        return std::move(findings_);
    }

private:
    void Find(FindingKind kind, std::string_view subject, std::string text) {
        findings_.push_back({kind, std::string(subject), std::move(text)});
    }

    void CheckFolder() {
        const std::string& folder = document_.CdFolder();
        if (folder.empty()) {
            Find(FindingKind::FolderMissing, folder, "No CD-ROM files folder is set.");
        } else if (!FolderExists(folder)) {
            Find(FindingKind::FolderMissing, folder,
                 "The CD-ROM files folder " + folder + " does not exist.");
        }
    }

    void CheckTemplate() {
        const std::string& descriptor = document_.OsnovnaPodesavanja.Sablon;
        const std::string& runtime = document_.Working.TemplateRuntimePath;
        if (descriptor.empty()) {
            Find(FindingKind::NoTemplate, descriptor, "The project has no template.");
            return;
        }
        if (!FileExists(descriptor)) {
            Find(FindingKind::DescriptorMissing, descriptor,
                 "The template " + descriptor + " does not exist.");
        }
        if (FileLengthOrZero(runtime) == 0) {
            Find(FindingKind::RuntimeMissing, runtime,
                 "The template's program " + runtime + " is missing.");
        }
    }

    void CheckName() {
        const std::string name = InitialAutorunName(document_);
        if (name.empty()) {
            Find(FindingKind::NameInvalid, name, "The autorun program has no name.");
        } else if (!IsValidName(name)) {
            Find(FindingKind::NameInvalid, name,
                 "\"" + name +
                     "\" is no name for an autorun program: only letters A to Z, digits, " +
                     "\"_\" and \"-\" can be used.");
        }
    }

    /// Button pictures are asked from the file: the reader drops the ones that are missing.
    [[nodiscard]] std::vector<std::string> Files() const {
        std::vector<std::string> files = PackageFilesOf(document_, 1, FontPackageOrder);
        for (std::size_t row = 0; row < ButtonRows; ++row) {
            const std::string key = "DugmePictureFile" + KeySuffix(KeyForm::Parentheses, row);
            std::string path =
                ExpandProgramFolder(file_.Value("Napredni sabloni", key), programFolder_);
            if (!path.empty() && std::find(files.begin(), files.end(), path) == files.end()) {
                files.push_back(std::move(path));
            }
        }
        return files;
    }

    void CheckFiles() {
        const std::vector<std::string> files = Files();
        for (const std::string& path : files) {
            CheckFile(path);
        }
        CheckSameNames(files);
        constexpr std::size_t most = package_format::MostFiles - 1; // the configuration is one, too
        for (std::size_t i = most; i < files.size(); ++i) {
            Find(FindingKind::TooManyFiles, files[i],
                 "The package holds at most 20 files with its configuration; " + files[i] +
                     " is one too many.");
        }
    }

    void CheckFile(const std::string& path) {
        const std::string_view name = FileNameOf(path);
        if (!FileExists(path)) {
            Find(FindingKind::FileMissing, path, "The file " + path + " does not exist.");
        } else if (FileLengthOrZero(path) == 0) {
            Find(FindingKind::FileEmpty, path, "The file " + path + " is empty.");
        }
        if (!CanBeScrambled(name)) {
            Find(FindingKind::NameNotScramblable, path,
                 "The file " + path +
                     " cannot be packed: its name has characters that are not in English.");
        }
    }

    void CheckSameNames(const std::vector<std::string>& files) {
        for (std::size_t i = 0; i < files.size(); ++i) {
            const std::string_view name = FileNameOf(files[i]);
            const auto same = [&](std::string_view other) {
                return EqualWithoutCase(FileNameOf(other), name);
            };
            if (same(package_format::ConfigurationName)) {
                Find(FindingKind::SameName, files[i],
                     "The file " + files[i] + " has the name of the package's configuration.");
            }
            const auto earlier = files.begin() + static_cast<std::ptrdiff_t>(i);
            const auto found = std::find_if(files.begin(), earlier, same);
            if (found != earlier) {
                Find(FindingKind::SameName, files[i],
                     "The files " + *found + " and " + files[i] +
                         " have one name; the autorun program finds only the first.");
            }
        }
    }

    void CheckValues() {
        for (const ProfileFile::Entry& entry : file_.Entries()) {
            const std::string key =
                "[" + std::string(entry.section) + "] " + std::string(entry.key);
            if (entry.value.size() > ProfileFile::MaximumValue) {
                Find(FindingKind::ValueTooLong, key,
                     key + " has " + std::to_string(entry.value.size()) +
                         " characters; it is cut after 1023.");
            }
            CheckCharactersOf(entry, key);
        }
    }

    void CheckCharactersOf(const ProfileFile::Entry& entry, const std::string& key) {
        const auto undefined = [](char byte) {
            return SystemCodePage().IsUndefined(static_cast<unsigned char>(byte));
        };
        if (std::any_of(entry.value.begin(), entry.value.end(), undefined)) {
            Find(FindingKind::UndefinedCharacter, key,
                 key + " has a character that code page " +
                     std::to_string(SystemCodePage().Number()) + " does not know.");
        }
    }

    const ProjectDocument& document_;
    const ProfileFile& file_;
    std::string programFolder_;
    std::vector<Finding> findings_;
};

} // namespace

std::vector<Finding> CheckProject(const ProjectDocument& document, const ProfileFile& file,
                                  const std::string& programFolder) {
    return Check(document, file, programFolder).Run();
}

} // namespace tavmoor
