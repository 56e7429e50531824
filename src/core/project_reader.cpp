#include "core/project_reader.h"

#include "core/document_path.h"
#include "core/field_text.h"
#include "core/file_store.h"
#include "core/value_encoding.h"

#include <algorithm>

namespace tavmoor {

namespace {

/// Walks the field table and asks the file for each key in turn.
class Reader {
public:
    Reader(const ProfileFile& file, ProjectDocument& document, const std::string& programFolder,
           ProjectReaderListener& listener, FieldFile kind)
        : file_(file), document_(document), programFolder_(programFolder), listener_(listener),
          kind_(kind) {}

    void Read() {
        for (const FieldBlock& block : ProjectBlocks()) {
            if (kind_ == FieldFile::Project || block.inConfiguration) {
                ReadBlock(block);
            }
        }
    }

private:
    void ReadBlock(const FieldBlock& block) {
        for (std::size_t row = block.first; row <= block.last; ++row) {
            const bool empty = FirstValue(block, row).empty();
            if (empty && block.readRows == ReadRows::UntilFirstEmpty) {
                return;
            }
            const std::size_t count = empty && block.readRows == ReadRows::SkipUntitled
                                          ? std::size_t{1}
                                          : block.fields.size();
            for (const FieldSpec& field : block.fields.first(count)) {
                ReadField({&block, &field, row});
            }
        }
    }

    std::string_view FirstValue(const FieldBlock& block, std::size_t row) {
        return block.readRows == ReadRows::All ? std::string_view()
                                               : Value({&block, &block.fields.front(), row});
    }

    std::string_view Value(const FieldPlace& place) {
        key_.clear();
        AppendKey(key_, place.field->KeyIn(kind_), place.block->keyForm, place.row);
        return file_.Value(place.block->section, key_);
    }

    void ReadField(const FieldPlace& place) {
        const FieldSpec& field = *place.field;
        if (field.writeOnly || !field.StandsIn(kind_)) {
            return;
        }
        const std::string_view value = Value(place);
        if (kind_ == FieldFile::Project && field.expandsProgramFolder) {
            AssignFieldText(document_, place, ExpandProgramFolder(value, programFolder_), kind_);
        } else {
            AssignFieldText(document_, place, value, kind_);
        }
        if (kind_ == FieldFile::Project) {
            TakeStep(place);
        }
    }

    void TakeStep(const FieldPlace& place) {
        switch (place.field->readStep) {
        case ReadStep::None:
            return;
        case ReadStep::Template:
            TakeTemplate();
            return;
        case ReadStep::Icon:
            listener_.IconRead(Text(place));
            return;
        case ReadStep::Font:
            listener_.FontRead(Text(place));
            return;
        case ReadStep::ButtonPicture:
            CheckButtonPicture(Text(place));
            return;
        }
    }

    std::string& Text(const FieldPlace& place) {
        return *std::get<std::string*>(place.Edit(document_));
    }

    void TakeTemplate() {
        const std::string& descriptor = document_.OsnovnaPodesavanja.Sablon;
        if (descriptor.empty()) {
            return;
        }
        document_.Working.TemplateName = ReadProfileValue(descriptor, "Template", "Name");
        UpdateTemplateRuntimePath(document_);
    }

    void CheckButtonPicture(std::string& path) {
        if (path.empty() || FileLengthOrZero(path) > 0) {
            return;
        }
        listener_.ShowMessage("The file " + path + " used in this project could not be found!",
                              "Warning...");
        path.clear();
    }

    const ProfileFile& file_;
    ProjectDocument& document_;
    const std::string& programFolder_;
    ProjectReaderListener& listener_;
    FieldFile kind_;
    std::string key_;
};

std::int16_t CountFixedCommands(const ProjectDocument& document) {
    const auto& commands = document.IzvrsneKomande.Komande;
    return static_cast<std::int16_t>(
        std::count_if(commands.begin() + 1, commands.end(), [](const FixedCommand& command) {
            return !command.Opis.empty() && !command.Vrsta.empty();
        }));
}

const FieldBlock& ButtonBlock() {
    return *FindField("Napredni sabloni", "DugmeX(0)")->block;
}

} // namespace

void ReadProject(ProjectDocument& document, const std::string& programFolder,
                 ProjectReaderListener& listener) {
    ReadProjectFrom(ProfileFile::Load(document.Working.Recent), document, programFolder, listener);
}

void ReadProjectFrom(const ProfileFile& file, ProjectDocument& document,
                     const std::string& programFolder, ProjectReaderListener& listener) {
    Reader(file, document, programFolder, listener, FieldFile::Project).Read();
    listener.LetEventsRun();
    listener.ApplyTemplateCapabilities();
    document.Working.FixedCommandCount = CountFixedCommands(document);
    listener.ProjectTitleChanged(document.Working.ProjectPath);
}

void ReadRuntimeConfiguration(const ProfileFile& file, ProjectDocument& document) {
    const std::string noFolder;
    class Silent final : public ProjectReaderListener {
    } silent;
    Reader(file, document, noFolder, silent, FieldFile::Configuration).Read();
    MakeButtonsLive(document, ButtonRowsIn(file));
}

std::bitset<ButtonRows> ButtonRowsIn(const ProfileFile& file) {
    const FieldBlock& block = ButtonBlock();
    std::bitset<ButtonRows> rows;
    std::string key;
    for (std::size_t row = block.first; row <= block.last; ++row) {
        rows[row] = std::any_of(
            block.fields.begin(), block.fields.end(), [&](const FieldSpec& field) {
                key.clear();
                AppendKey(key, field.key, block.keyForm, row);
                return !file.Value(block.section, key).empty();
            });
    }
    return rows;
}

void MakeButtonsLive(ProjectDocument& document, const std::bitset<ButtonRows>& rows) {
    for (std::size_t row = 0; row < ButtonRows; ++row) {
        if (rows[row]) {
            document.NapredniSabloni.Dugme[row].DugmeExists = true;
        }
    }
}

void UpdateTemplateRuntimePath(ProjectDocument& document) {
    document.Working.TemplateRuntimePath =
        std::string(FolderOf(document.OsnovnaPodesavanja.Sablon)) + "\\template.tavexe";
}

} // namespace tavmoor
