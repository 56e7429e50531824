#include "disc/disc_survey.h"

#include "core/document/project_fields.h"
#include "core/files/document_path.h"
#include "core/files/runtime_error.h"
#include "core/text/maker.h"
#include "core/text/text_case.h"
#include "disc/autorun_inf.h"
#include "disc/version_block.h"
#include "package/package_format.h"

#include <algorithm>
#include <tuple>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

std::string Utf8Name(const fs::path& path) {
    const std::u8string name = path.filename().u8string();
    return {name.begin(), name.end()};
}

std::optional<OutputKind> KindOfName(std::string_view name) {
    if (EqualWithoutCase(name, InfName)) {
        return OutputKind::Inf;
    }
    if (EqualWithoutCase(name, package_format::PackageName)) {
        return OutputKind::Package;
    }
    if (EqualWithoutCase(name, IconName)) {
        return OutputKind::Icon;
    }
    return std::nullopt;
}

bool IsRegular(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

bool IsMarkedProgram(const fs::path& path) {
    return IsRegular(path) && ReadCompanyName(path) == MakerMarker;
}

/// Nothing comes free with a link, or with one of several names of a file.
std::uint64_t BytesThatComeFree(const fs::path& path) {
    std::error_code error;
    const bool isOwn = fs::is_regular_file(fs::symlink_status(path, error)) &&
                       fs::hard_link_count(path, error) == 1;
    const auto bytes = isOwn ? fs::file_size(path, error) : 0;
    return error ? 0 : bytes;
}

/// Nothing for a file that is none of the build's business.
std::optional<OldOutput> Look(const fs::path& path, std::string_view programName) {
    const std::string name = Utf8Name(path);
    const bool hasProgramName = EqualWithoutCase(name, programName);
    std::optional<OutputKind> kind = KindOfName(name);
    bool isMarked = false;
    if (!kind && (hasProgramName || EndsWithoutCase(name, ".exe"))) {
        isMarked = IsMarkedProgram(path);
        if (isMarked || hasProgramName) {
            kind = OutputKind::Program;
        }
    }
    const auto identity = IdentityOfEntry(path);
    if (!kind || !identity) {
        return std::nullopt;
    }
    OldOutput output;
    output.path = path;
    output.kind = *kind;
    output.identity = *identity;
    output.bytes = BytesThatComeFree(path);
    output.isForeign = *kind == OutputKind::Program && !isMarked;
    std::error_code error;
    output.isFolder = fs::is_directory(fs::symlink_status(path, error));
    return output;
}

} // namespace

std::vector<OldOutput> SurveyDisc(const fs::path& folder, std::string_view programName) {
    std::vector<OldOutput> outputs;
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        if (auto output = Look(entries->path(), programName)) {
            outputs.push_back(std::move(*output));
        }
    }
    if (error) {
        throw FileError(error, ShownPath(folder));
    }
    std::sort(outputs.begin(), outputs.end(), [](const OldOutput& a, const OldOutput& b) {
        return std::tie(a.kind, a.path) < std::tie(b.kind, b.path);
    });
    return outputs;
}

bool IsUnchanged(const OldOutput& output) {
    const bool isProgram = output.kind == OutputKind::Program && !output.isForeign;
    return IdentityOfEntry(output.path) == output.identity &&
           (!isProgram || IsMarkedProgram(output.path));
}

std::vector<std::string> InputsOf(const ProjectDocument& document) {
    std::vector<std::string> inputs = PackageFilesOf(document, 1, FontPackageOrder);
    inputs.insert(inputs.end(), {document.Working.ProjectPath, document.OsnovnaPodesavanja.Sablon,
                                 document.Working.TemplateRuntimePath});
    return inputs;
}

bool LeadsTo(const std::string& documentPath, const OldOutput& output) {
    const auto native = documentPath.empty() ? std::nullopt : FindNativePath(documentPath);
    return native &&
           (IdentityOf(*native) == output.identity || IdentityOfEntry(*native) == output.identity);
}

} // namespace tavmoor
