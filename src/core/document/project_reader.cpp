#include "core/document/project_reader.h"

#include "core/document/field_text.h"
#include "core/files/file_store.h"
#include "core/text/path_text.h"

#include <algorithm>
#include <unordered_map>

namespace tavmoor {

namespace {

/// Walks the field table and asks the file for each key in turn.
class Reader {
public:
    Reader(const ProfileFile& file, ProjectDocument& document, const std::string& programFolder,
           ProjectReaderListener& listener, FieldFile kind)
        : file_(file), section_(file.In("")), document_(document), programFolder_(programFolder),
          listener_(listener), kind_(kind) {}

    void Read() {
        for (const FieldBlock& block : ProjectBlocks()) {
            if (kind_ == FieldFile::Project || block.inConfiguration) {
                ReadBlock(block);
            }
        }
    }

private:
    void ReadBlock(const FieldBlock& block) {
        section_ = file_.In(block.section);
        for (std::size_t row = block.first; row <= block.last; ++row) {
            suffix_ = KeySuffix(block.keyForm, row);
            std::size_t count = block.fields.size();
            if (block.readRows != ReadRows::All && Value(block.fields.front()).empty()) {
                const bool skipped = block.readRows == ReadRows::FirstAnyway && row == 0;
                if (block.readRows != ReadRows::SkipUntitled && !skipped) {
                    return;
                }
                count = skipped ? 0 : 1;
            }
            for (const FieldSpec& field : block.fields.first(count)) {
                ReadField({&block, &field, row});
            }
        }
    }

    std::string_view Value(const FieldSpec& field) {
        key_.assign(field.KeyIn(kind_)).append(suffix_);
        return section_.Value(key_);
    }

    void ReadField(const FieldPlace& place) {
        const FieldSpec& field = *place.field;
        if (field.writeOnly || !field.StandsIn(kind_)) {
            return;
        }
        const std::string_view value = Value(field);
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

    /// Many buttons share a picture; each is looked at once.
    bool IsUsablePicture(const std::string& path) {
        const auto [known, fresh] = pictures_.emplace(path, false);
        if (fresh) {
            known->second = FileLengthOrZero(path) > 0;
        }
        return known->second;
    }

    void CheckButtonPicture(std::string& path) {
        if (path.empty() || IsUsablePicture(path)) {
            return;
        }
        listener_.ShowMessage("The file " + path + " used in this project could not be found!",
                              "Warning...");
        path.clear();
    }

    const ProfileFile& file_;
    ProfileFile::Section section_;
    ProjectDocument& document_;
    const std::string& programFolder_;
    ProjectReaderListener& listener_;
    FieldFile kind_;
    std::string suffix_;
    std::string key_;
    std::unordered_map<std::string, bool> pictures_; ///< whether a button picture can be used
};

std::int16_t CountFixedCommands(const ProjectDocument& document) {
    const auto& commands = document.IzvrsneKomande.Komande;
    return static_cast<std::int16_t>(
        std::count_if(commands.begin() + 1, commands.end(),
                      [](const FixedCommand& command) { return !command.IsFree(); }));
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
    ProfileFile::Section section = file.In(block.section);
    std::bitset<ButtonRows> rows;
    for (std::size_t row = block.first; row <= block.last; ++row) {
        const std::string suffix = KeySuffix(block.keyForm, row);
        rows[row] =
            std::any_of(block.fields.begin(), block.fields.end(), [&](const FieldSpec& field) {
                return !section.Value(std::string(field.key) + suffix).empty();
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
