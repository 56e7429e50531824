#include "disc/output_check.h"

#include "core/document/field_writer.h"
#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "core/text/path_text.h"
#include "disc/autorun_inf.h"
#include "disc/marked_programs.h"
#include "package/package_format.h"
#include "package/package_reader.h"

#include <fstream>
#include <optional>

namespace tavmoor {

namespace {

std::optional<std::string> ContentOf(const std::string& path) {
    try {
        return ReadWholeFile(path);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

class OutputCheck {
public:
    OutputCheck(const ProjectDocument& document, const BuiltPackage& built)
        : document_(document), built_(built), folder_(WithBackslash(document.CdFolder())) {}

    std::vector<std::string> Run() {
        CompareFile(document_.OsnovniPodaci.exename,
                    ContentOf(document_.Working.TemplateRuntimePath),
                    "the template's program " + document_.Working.TemplateRuntimePath);
        ComparePackage();
        CompareIcon();
        FindOlderPrograms();
        CompareFile("Autorun.inf", AutorunInfText(document_), "what was written");
        return std::move(faults_);
    }

private:
    void CompareFile(std::string_view name, const std::optional<std::string>& wanted,
                     const std::string& origin) {
        const std::string path = folder_ + std::string(name);
        const auto placed = ContentOf(path);
        if (!wanted) {
            faults_.push_back(origin + " is missing.");
        } else if (!placed) {
            faults_.push_back(path + " was not placed.");
        } else if (*placed != *wanted) {
            faults_.push_back(path + " differs from " + origin + ".");
        }
    }

    void CompareIcon() {
        const std::string& icon = document_.OsnovniPodaci.Ikona;
        if (!icon.empty()) {
            CompareFile(IconName, ContentOf(icon), "the icon " + icon);
        } else if (FileExists(folder_ + std::string(IconName))) {
            faults_.push_back(folder_ + std::string(IconName) +
                              " of an earlier build is still there.");
        }
    }

    void FindOlderPrograms() {
        const std::string own = folder_ + document_.OsnovniPodaci.exename;
        for (const std::string& path : MarkedProgramsIn(document_.CdFolder())) {
            if (!SamePath(path, own)) {
                faults_.push_back("The older autorun program " + path + " could not be deleted.");
            }
        }
    }

    void ComparePackage() {
        const std::string path = folder_ + std::string(package_format::PackageName);
        if (FileLengthOrZero(path) != built_.length || HeadOf(path) != built_.head) {
            faults_.push_back(path + " is not the package that was built.");
            return;
        }
        try {
            PackageFile package(NativePath(path));
            if (package.Read(package.Entries().at(0)) !=
                FieldFileText(document_, FieldFile::Configuration)) {
                faults_.push_back(path + " does not hold the project's configuration.");
            }
        } catch (const PackageError& error) {
            faults_.push_back(path + " is damaged: " + error.what());
        }
    }

    [[nodiscard]] std::string HeadOf(const std::string& path) const {
        std::ifstream file(NativePath(path), std::ios::binary);
        std::string head(built_.head.size(), '\0');
        file.read(head.data(), static_cast<std::streamsize>(head.size()));
        return head;
    }

    const ProjectDocument& document_;
    const BuiltPackage& built_;
    std::string folder_;
    std::vector<std::string> faults_;
};

} // namespace

std::vector<std::string> FaultsOfPlacedOutput(const ProjectDocument& document,
                                              const BuiltPackage& package) {
    return OutputCheck(document, package).Run();
}

} // namespace tavmoor
