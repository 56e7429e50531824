// Any bytes as a project file: what is read and written comes back the same when it is read and
// written again.

#include "core/document/project_reader.h"
#include "check.h"
#include "core/document/field_writer.h"
#include "core/document/project_reset.h"
#include "core/files/profile_file.h"

#include <algorithm>
#include <memory>
#include <string>

namespace {

using namespace tavmoor;

class Silent final : public ProjectReaderListener {};

std::unique_ptr<ProjectDocument> ReadText(const std::string& text) {
    static const ProjectDocument fresh = NewProjectDocument();
    auto document = std::make_unique<ProjectDocument>(fresh);
    Silent listener;
    const ProfileFile file(text);
    ReadProjectFrom(file, *document, "Z:\\program", listener);
    MakeButtonsLive(*document, ButtonRowsIn(file));
    return document;
}

/// The writer pairs slots and lines by two counters, so commands behind a hole change places.
bool HasCommandHole(const ProjectDocument& document) {
    const auto isFree = [](const CommandEntry& entry) {
        return entry.addname.empty() || entry.addname == " ";
    };
    const auto& commands = document.DodatneKomande;
    const auto hole = std::find_if(commands.begin(), commands.end(), isFree);
    return !std::all_of(hole, commands.end(), isFree);
}

/// Two texts are decoded when read and written as they are, so a line break in them cuts the line.
bool HasRawLineBreak(const ProjectDocument& document) {
    return (document.IzvrsneKomande.Izlaz + document.OsnovniPodaci.Vertekst).find('\n') !=
           std::string::npos;
}

/// A chosen option of 0 has no line, and a missing line leaves the new project's option.
bool HasNoScreenOption(const ProjectDocument& document) {
    return document.Uvod.Opcija == 0 || document.Izlaz.Opcija == 0;
}

/// Encoding lengthens a text and "%" stands for a whole folder, but a value is cut when read.
bool HasLongValue(const std::string& text) {
    const ProfileFile file(text);
    const auto entries = file.Entries();
    return std::any_of(entries.begin(), entries.end(), [](const auto& entry) {
        return entry.value.size() > ProfileFile::MaximumValue;
    });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const auto document = ReadText(text);
    const std::string once = FieldFileText(*document, FieldFile::Project);
    const auto again = ReadText(once);
    const std::string twice = FieldFileText(*again, FieldFile::Project);
    if (!HasCommandHole(*document) && !HasRawLineBreak(*document) &&
        !HasNoScreenOption(*document)) {
        if (!HasLongValue(once)) {
            Check(once == twice, "a written project reads and writes as it is");
        } else {
            const auto third = ReadText(twice);
            Check(FieldFileText(*third, FieldFile::Project) == twice,
                  "values are cut once and then stay");
        }
    }
    // The runtime configuration has the same fields, so that a few of the inputs are enough for it.
    if (size % 4 == 0) {
        auto configured = std::make_unique<ProjectDocument>(*again);
        ReadRuntimeConfiguration(ProfileFile(text), *configured);
        FieldFileText(*configured, FieldFile::Configuration);
    }
    return 0;
}
