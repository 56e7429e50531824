#pragma once

#include "core/document/project_document.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavmoor {

/// A simple template: its display name and the path of its descriptor, in document form.
struct TemplateInfo {
    std::string name;
    std::string descriptorPath;
};

/// The templates below a folder. The two lists run parallel only as long as every descriptor has a
/// name: one without takes a path and no name, and from there on the rows disagree. That is kept;
/// templates must have names.
struct TemplateCatalogue {
    std::vector<std::string> names; ///< `List1`
    std::vector<std::string> paths; ///< `List3`
};

/// The folder of the templates that come with the program; no backslash at its end.
std::string TemplatesFolder(std::string_view programFolder);

/// Searches the folder to any depth for "*.tavt": the files of a folder first, then its sub-folders
/// one after the other. Names come in the order in which the file system lists them. Links to
/// folders are followed only as far as they do not lead back.
TemplateCatalogue ReadTemplateCatalogue(std::string_view templatesFolder);

/// Each descriptor that has a name, with that name.
std::vector<TemplateInfo> NamedTemplates(const TemplateCatalogue& catalogue);

/// The row of a descriptor in the list of paths, without regard to case.
std::optional<std::size_t> RowOfTemplate(const TemplateCatalogue& catalogue,
                                         std::string_view descriptorPath);

/// The descriptor of the visual editor, at its fixed place below the program's folder.
std::string EditorDescriptorPath(std::string_view programFolder);

/// The display name of the visual editor's template in the main window.
inline constexpr std::string_view EditorDisplayName = "Advanced Visual editor";

/// Binds the project to a simple template, or to the visual editor's with SelectEditorTemplate.
/// Sets `Sablon`, `TemplateName` and `TemplateRuntimePath`, and the main title to "New project..."
/// when it is empty; nothing else of the project changes.
void SelectTemplate(ProjectDocument& document, const TemplateInfo& chosen);
void SelectEditorTemplate(ProjectDocument& document, std::string_view programFolder);

/// The description and the picture that the template window shows for a descriptor.
struct TemplatePreview {
    std::string descriptionPath; ///< "opis.rtf" beside the descriptor
    std::string picturePath;     ///< "template.jpg", or "template.gif" when the first is empty
};
TemplatePreview ShowTemplatePreview(std::string_view descriptorPath);

} // namespace tavmoor
