#include "templates/template_catalogue.h"

#include "core/document/project_reader.h"
#include "core/files/document_path.h"
#include "core/files/file_store.h"
#include "core/text/path_text.h"
#include "core/text/text_case.h"
#include "templates/template_descriptor.h"

#include <filesystem>
#include <set>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view DescriptorExtension = ".tavt";
constexpr std::string_view EditorDescriptor =
    "\\Templates\\Advanced visual editor\\Advanced visual editor.Atavt";

class Search {
public:
    explicit Search(std::vector<std::string>& found) : found_(found) {}

    void Folder(const fs::path& native, const std::string& path) {
        std::error_code error;
        if (!visited_.insert(fs::canonical(native, error).native()).second || error) {
            return;
        }
        std::vector<fs::path> folders;
        fs::directory_iterator entries(native, error);
        for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
            Entry(*entries, path, folders);
        }
        for (const fs::path& folder : folders) {
            if (const auto name = FindDocumentPath(folder.filename())) {
                Folder(folder, WithBackslash(path) + *name);
            }
        }
    }

private:
    void Entry(const fs::directory_entry& entry, const std::string& path,
               std::vector<fs::path>& folders) {
        std::error_code error;
        if (entry.is_directory(error)) {
            folders.push_back(entry.path());
            return;
        }
        const auto name = FindDocumentPath(entry.path().filename());
        if (name && EndsWithoutCase(*name, DescriptorExtension)) {
            found_.push_back(WithBackslash(path) + *name);
        }
    }

    std::vector<std::string>& found_;
    std::set<fs::path::string_type> visited_;
};

void Bind(ProjectDocument& document, std::string descriptorPath, std::string name) {
    document.OsnovnaPodesavanja.Sablon = std::move(descriptorPath);
    document.Working.TemplateName = std::move(name);
    UpdateTemplateRuntimePath(document);
    std::string& title = document.OsnovniPodaci.Glavninaslov;
    if (title.empty()) {
        title = "New project...";
    }
}

} // namespace

std::string TemplatesFolder(std::string_view programFolder) {
    std::string folder = std::string(programFolder) + "\\templates";
    if (folder.back() == '\\') {
        folder.pop_back();
    }
    return folder;
}

TemplateCatalogue ReadTemplateCatalogue(std::string_view templatesFolder) {
    TemplateCatalogue catalogue;
    if (const auto native = FindNativePath(templatesFolder)) {
        Search(catalogue.paths).Folder(*native, std::string(templatesFolder));
    }
    for (const std::string& path : catalogue.paths) {
        if (std::string name = TemplateDisplayName(path); !name.empty()) {
            catalogue.names.push_back(std::move(name));
        }
    }
    return catalogue;
}

std::vector<TemplateInfo> NamedTemplates(const TemplateCatalogue& catalogue) {
    std::vector<TemplateInfo> templates;
    for (const std::string& path : catalogue.paths) {
        if (std::string name = TemplateDisplayName(path); !name.empty()) {
            templates.push_back({std::move(name), path});
        }
    }
    return templates;
}

std::optional<std::size_t> RowOfTemplate(const TemplateCatalogue& catalogue,
                                         std::string_view descriptorPath) {
    for (std::size_t row = 0; row < catalogue.paths.size(); ++row) {
        if (SamePath(catalogue.paths[row], descriptorPath)) {
            return row;
        }
    }
    return std::nullopt;
}

std::string EditorDescriptorPath(std::string_view programFolder) {
    return std::string(programFolder) + std::string(EditorDescriptor);
}

void SelectTemplate(ProjectDocument& document, const TemplateInfo& chosen) {
    Bind(document, chosen.descriptorPath, chosen.name);
}

void SelectEditorTemplate(ProjectDocument& document, std::string_view programFolder) {
    Bind(document, EditorDescriptorPath(programFolder), EditorTemplateName);
}

TemplatePreview ShowTemplatePreview(std::string_view descriptorPath) {
    const std::string folder = WithBackslash(FolderOf(descriptorPath));
    TemplatePreview preview{folder + "opis.rtf", folder + "template.jpg"};
    if (FileLengthOrZero(preview.picturePath) == 0) {
        preview.picturePath = folder + "template.gif";
    }
    return preview;
}

} // namespace tavmoor
