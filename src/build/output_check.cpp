#include "build/output_check.h"

#include "build/autorun_inf.h"
#include "build/package_format.h"
#include "build/package_reader.h"
#include "core/document_path.h"
#include "core/field_writer.h"
#include "core/file_store.h"
#include "core/runtime_error.h"
#include "core/value_encoding.h"

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
    explicit OutputCheck(const ProjectDocument& document)
        : document_(document), folder_(WithBackslash(document.CdFolder())) {}

    std::vector<std::string> Run() {
        CompareFile(document_.OsnovniPodaci.exename,
                    ContentOf(document_.Working.TemplateRuntimePath),
                    "the template's program " + document_.Working.TemplateRuntimePath);
        ComparePackage();
        CompareIcon();
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
            faults_.push_back(folder_ + std::string(IconName) + " of an earlier build is still there.");
        }
    }

    void ComparePackage() {
        const std::string path = folder_ + std::string(package_format::PackageName);
        try {
            PackageFile package(NativePath(path));
            CompareEntries(package, path);
        } catch (const PackageError& error) {
            faults_.push_back(path + " is damaged: " + error.what());
        }
    }

    void CompareEntries(PackageFile& package, const std::string& path) {
        const auto& list = document_.Working.listafajlova;
        const auto& entries = package.Entries();
        bool same = entries.size() == list.size() && !entries.empty();
        for (std::size_t i = 0; same && i < list.size(); ++i) {
            // The configuration is gone from the build folder; its bytes are compared below.
            const bool sameSize = i == 0 || entries[i].size == FileLengthOrZero(list[i]);
            same = entries[i].name == FileNameOf(list[i]) && sameSize;
        }
        if (!same) {
            faults_.push_back(path + " does not hold the project's files.");
        } else if (package.Read(entries.front()) !=
                   FieldFileText(document_, FieldFile::Configuration)) {
            faults_.push_back(path + " does not hold the project's configuration.");
        }
    }

    const ProjectDocument& document_;
    std::string folder_;
    std::vector<std::string> faults_;
};

} // namespace

std::vector<std::string> FaultsOfPlacedOutput(const ProjectDocument& document) {
    return OutputCheck(document).Run();
}

} // namespace tavmoor
