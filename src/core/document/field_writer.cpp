#include "core/document/field_writer.h"

#include "core/document/field_text.h"

namespace tavmoor {

namespace {

constexpr std::string_view LineEnd = "\r\n";

bool IsSet(const FieldAccess& flag, const ProjectDocument& document) {
    return *std::get<const bool*>(flag.read(document, 0));
}

class Writer {
public:
    Writer(const ProjectDocument& document, FieldFile file) : document_(document), file_(file) {
        constexpr std::size_t largeProject = 1U << 18U;
        text_.reserve(largeProject);
    }

    std::string Write() {
        for (const FieldBlock& block : ProjectBlocks()) {
            if (file_ == FieldFile::Project || block.inConfiguration) {
                WriteSectionLine(block);
                WriteBlock(block);
            }
        }
        return std::move(text_);
    }

private:
    void WriteSectionLine(const FieldBlock& block) {
        if (block.section != section_) {
            section_ = block.section;
            text_ += '[';
            text_ += section_;
            text_ += ']';
            text_ += LineEnd;
        }
    }

    void WriteLine(std::string_view line) {
        if (!line.empty()) {
            text_ += line;
            text_ += LineEnd;
        }
    }

    void WriteBlock(const FieldBlock& block) {
        if (block.writtenWhen && !IsSet(*block.writtenWhen, document_)) {
            return;
        }
        std::size_t written = 0;
        for (std::size_t row = block.first; row <= block.last; ++row) {
            switch (block.writeRows) {
            case WriteRows::All:
                WriteRow(block, row);
                break;
            case WriteRows::UntilFirstEmpty:
                if (IsUnset(block.fields.front().access.read(document_, row))) {
                    return;
                }
                WriteRow(block, row);
                break;
            case WriteRows::LiveButtons:
                if (document_.NapredniSabloni.Dugme[row].DugmeExists) {
                    WriteRow(block, row);
                }
                break;
            case WriteRows::VisibleTexts:
                if (document_.ObjTekst[row].TekstBoxVisible) {
                    WriteRow(block, row);
                }
                break;
            case WriteRows::Commands:
                if (!document_.DodatneKomande[row].IsFree()) {
                    WriteRow(block, written++);
                }
                break;
            }
        }
    }

    void WriteRow(const FieldBlock& block, std::size_t row) {
        suffix_ = KeySuffix(block.keyForm, row);
        for (const FieldSpec& field : block.fields) {
            if (!StandsAtSectionEnd(field)) {
                WriteField({&block, &field, row});
            }
        }
        for (const FieldSpec& field : block.fields) {
            if (StandsAtSectionEnd(field)) {
                WriteField({&block, &field, row});
            }
        }
    }

    [[nodiscard]] bool StandsAtSectionEnd(const FieldSpec& field) const {
        return file_ == FieldFile::Configuration && field.place == Place::ConfigurationAtSectionEnd;
    }

    void WriteField(const FieldPlace& place) {
        const FieldSpec& field = *place.field;
        if (!field.StandsIn(file_)) {
            return;
        }
        if (field.guard && IsSet(field.guard->flag, document_) != field.guard->wanted) {
            WriteLine(field.guard->otherwise);
            return;
        }
        const bool special = field.lineOnlyWhenSet || !field.lineWhenEmpty.empty();
        if (special && IsUnset(place.Read(document_))) {
            WriteLine(field.lineWhenEmpty);
            return;
        }
        text_.append(field.KeyIn(file_)).append(suffix_) += '=';
        AppendFieldText(text_, document_, place, file_);
        text_ += LineEnd;
    }

    const ProjectDocument& document_;
    FieldFile file_;
    std::string text_;
    std::string_view section_;
    std::string suffix_;
};

} // namespace

std::string FieldFileText(const ProjectDocument& document, FieldFile file) {
    return Writer(document, file).Write();
}

} // namespace tavmoor
