#include "full_project.h"

#include "core/document/field_text.h"
#include "core/document/project_reset.h"

namespace tavmoor::bench {

namespace {

/// A plausible stored value for a field of any type.
std::string SampleFor(const FieldSpec& field, ConstValueRef value, std::size_t row) {
    if (std::holds_alternative<const bool*>(value)) {
        return field.flagForm == FlagForm::DaNe      ? "Da"
               : field.flagForm == FlagForm::OneZero ? "1"
                                                     : "True";
    }
    if (std::holds_alternative<const std::string*>(value)) {
        return field.textForm == TextForm::Size
                   ? "12"
                   : "A text of middling length, row " + std::to_string(row);
    }
    return field.numberRule == NumberRule::ScreenOption ? "2" : std::to_string(row + 100);
}

} // namespace

std::unique_ptr<ProjectDocument> FullProject(const std::string& picturePath) {
    auto document = std::make_unique<ProjectDocument>(NewProjectDocument());
    for (const FieldBlock& block : ProjectBlocks()) {
        for (std::size_t row = block.first; row <= block.last; ++row) {
            for (const FieldSpec& field : block.fields) {
                const FieldPlace place{&block, &field, row};
                const std::string sample = field.readStep == ReadStep::ButtonPicture
                                               ? picturePath
                                               : SampleFor(field, place.Read(*document), row);
                AssignFieldText(*document, place, sample, FieldFile::Project);
            }
        }
    }
    for (ButtonObject& button : document->NapredniSabloni.Dugme) {
        button.DugmeExists = true;
    }
    document->OsnovnaPodesavanja.Sablon.clear();
    return document;
}

} // namespace tavmoor::bench
