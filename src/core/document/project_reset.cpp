#include "core/document/project_reset.h"

#include "core/document/field_text.h"

namespace tavmoor {

namespace {

template <typename Filter>
void ResetFields(ProjectDocument& document, Filter wanted) {
    for (const FieldBlock& block : ProjectBlocks()) {
        for (std::size_t row = block.resetFirst; row <= block.resetLast; ++row) {
            for (const FieldSpec& field : block.fields) {
                if (wanted(field)) {
                    ResetField(document, {&block, &field, row});
                }
            }
        }
    }
}

} // namespace

void ResetProjectSettings(ProjectDocument& document) {
    ResetFields(document, [](const FieldSpec&) { return true; });
    document.Working.listafajlova.clear();
    document.Working.ProjectPath.clear();
    document.Working.TemplateName.clear();
}

void ResetObjects(ProjectDocument& document) {
    ResetFields(document, [](const FieldSpec& field) { return field.resetWithObjects; });
    for (ButtonObject& button : document.NapredniSabloni.Dugme) {
        button.DugmeExists = false;
    }
}

ProjectDocument NewProjectDocument() {
    ProjectDocument document;
    ResetProjectSettings(document);
    ResetObjects(document);
    return document;
}

} // namespace tavmoor
