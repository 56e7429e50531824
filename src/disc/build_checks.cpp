#include "disc/build_checks.h"

#include "core/disk/fresh_file.h"
#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "core/text/maker.h"
#include "core/text/path_text.h"
#include "disc/version_block.h"
#include "package/name_scrambling.h"
#include "package/package_reader.h"

#include <algorithm>

namespace tavmoor {

namespace {

std::optional<std::string> DescriptorObjection(const std::string& descriptor) {
    if (descriptor.empty()) {
        return "The project has no template.";
    }
    try {
        ReadWholeFile(descriptor);
        return std::nullopt;
    } catch (const RuntimeError& error) {
        return "The template cannot be read: " + std::string(error.what());
    }
}

std::string NameOf(const OldOutput& output) {
    return ShownPath(output.path.filename());
}

} // namespace

std::optional<std::string> TemplateObjection(const ProjectDocument& document) {
    const std::string& descriptor = document.OsnovnaPodesavanja.Sablon;
    if (auto objection = DescriptorObjection(descriptor)) {
        return objection;
    }
    const std::string& runtime = document.Working.TemplateRuntimePath;
    if (FileLengthOrZero(runtime) == 0) {
        return "The template's program " + runtime + " is missing or empty.";
    }
    const auto native = FindNativePath(runtime);
    if (!native || ReadCompanyName(*native) != MakerMarker) {
        return "The template's program " + runtime + " is no autorun program.";
    }
    return std::nullopt;
}

std::optional<std::string> ProgramNameObjection(const std::string& programName) {
    if (IsSafeEntryName(programName)) {
        return std::nullopt;
    }
    return "Windows does not allow a program with the name " + programName + ".";
}

std::optional<std::string> PackedNameObjection(const std::vector<std::string>& paths) {
    const auto refused = std::find_if(paths.begin(), paths.end(), [](const std::string& path) {
        return !IsSafeEntryName(FileNameOf(path));
    });
    if (refused == paths.end()) {
        return std::nullopt;
    }
    return "The file " + *refused + " cannot be packed: its name " +
           (CanBeScrambled(FileNameOf(*refused)) ? "is one that Windows does not allow."
                                                 : "has characters that are not in English.");
}

const OldOutput* IconInItsPlace(const ProjectDocument& document,
                                const std::vector<OldOutput>& old) {
    const auto found = std::find_if(old.begin(), old.end(), [&](const OldOutput& output) {
        return output.kind == OutputKind::Icon && LeadsTo(document.OsnovniPodaci.Ikona, output);
    });
    return found == old.end() ? nullptr : &*found;
}

std::optional<std::string> OldOutputObjection(const ProjectDocument& document,
                                              const std::vector<OldOutput>& old) {
    const OldOutput* icon = IconInItsPlace(document, old);
    const std::vector<std::string> inputs = InputsOf(document);
    for (const OldOutput& output : old) {
        if (&output == icon) {
            continue;
        }
        if (output.isFolder) {
            return NameOf(output) + " in the CD-ROM files folder is a folder. Its place is needed "
                                    "for a file of the autorun.";
        }
        for (const std::string& input : inputs) {
            if (LeadsTo(input, output)) {
                return "The project uses " + input +
                       ", which a build would replace or delete. Keep it in another place.";
            }
        }
    }
    return std::nullopt;
}

std::optional<std::string> InUseObjection(const std::vector<OldOutput>& old) {
    const auto used = std::find_if(old.begin(), old.end(), [](const OldOutput& output) {
        return TryToReplace(output.path) == std::errc::text_file_busy;
    });
    if (used == old.end()) {
        return std::nullopt;
    }
    return NameOf(*used) + " is running or in use. Close it and build again.";
}

std::optional<std::string> WorkFolderObjection(const ProjectDocument& document,
                                               const std::string& parent) {
    const auto work = FindNativePath(parent);
    const auto disc = FindNativePath(document.CdFolder());
    const auto identity = work ? IdentityOf(*work) : std::nullopt;
    if (disc && identity && identity == IdentityOf(*disc)) {
        return "The temporary compress folder is the CD-ROM files folder itself. Choose another "
               "one in the program settings.";
    }
    return std::nullopt;
}

} // namespace tavmoor
