#include "commands.h"

#include "console.h"
#include "core/files/file_store.h"
#include "open_project.h"
#include "package/package_reader.h"
#include "process.h"
#include "templates/template_catalogue.h"
#include "templates/template_descriptor.h"

namespace tavmoor::cli {

int PackageListCommand(const std::string& file) {
    const PackageFile package(NativeArgument(file));
    for (const PackageEntry& entry : package.Entries()) {
        PrintLine(std::to_string(entry.size) + "\t" + OneLine(entry.name));
    }
    return 0;
}

int PackageExtractCommand(const std::string& file, const std::string& folder) {
    PackageFile package(NativeArgument(file));
    package.ExtractTo(NativeArgument(folder));
    return 0;
}

int TemplatesCommand(const std::optional<std::string>& programFolder) {
    const std::string folder = ChosenProgramFolder(programFolder);
    if (!FolderExists(TemplatesFolder(folder))) {
        throw CommandFailure(Utf8(TemplatesFolder(folder)) + " does not exist");
    }
    const std::string editor = EditorDescriptorPath(folder);
    if (const std::string name = TemplateDisplayName(editor); !name.empty()) {
        PrintLine(OneLine(name) + "\t" + Utf8(editor));
    }
    for (const TemplateInfo& found :
         NamedTemplates(ReadTemplateCatalogue(TemplatesFolder(folder)))) {
        PrintLine(OneLine(found.name) + "\t" + Utf8(found.descriptorPath));
    }
    return 0;
}

} // namespace tavmoor::cli
