#include "commands.h"

#include "console.h"
#include "core/files/file_store.h"
#include "open_project.h"
#include "templates/template_catalogue.h"
#include "templates/template_descriptor.h"

namespace tavmoor::cli {

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
