#pragma once

#include "core/document/field_text.h"
#include "core/files/profile_file.h"
#include "support/full_project.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

namespace tavmoor::test {

/// A text whose lines are parted by '|', with the line ends of a file.
inline std::string Lines(const std::string& text) {
    return std::regex_replace(text, std::regex("\\|"), "\r\n") + "\r\n";
}

/// Compares fields by their stored form, each with a line "key=value" below its section.
inline void ExpectFields(const ProjectDocument& document, const std::string& lines) {
    const ProfileFile expected(Lines(lines));
    for (const ProfileFile::Entry& entry : expected.Entries()) {
        EXPECT_EQ(FieldText(document, FindField(entry.section, entry.key).value()), entry.value)
            << entry.section << " " << entry.key;
    }
}

/// Follows every field of the full project, with all its flags set, through a change.
class FieldsBeforeAndAfter {
public:
    FieldsBeforeAndAfter() : files_(full_->projectText + full_->configurationText) {
        Visit([this](const std::string&, const FieldPlace& place) {
            const ValueRef value = place.Edit(Document());
            if (auto* const* flag = std::get_if<bool*>(&value)) {
                **flag = true;
            }
        });
        *before_ = Document();
    }

    ProjectDocument& Document() { return full_->document; }

    /// What the change must have done: fields whose "section/key" matches `kept` are as before,
    /// those with a line in `lines` have its value, and all others are empty, 0 or off.
    void Expect(const std::string& kept, const std::string& lines) {
        const std::regex keptFields(kept);
        const ProfileFile values(Lines(lines));
        const auto blank = std::make_unique<ProjectDocument>();
        Visit([&](const std::string& name, const FieldPlace& place) {
            const std::string_view value = values.Value(place.block->section, KeyOf(place));
            const std::string expected = std::regex_match(name, keptFields)
                                             ? FieldText(*before_, place)
                                             : std::string(value);
            EXPECT_EQ(FieldText(Document(), place),
                      expected.empty() ? FieldText(*blank, place) : expected)
                << name;
        });
    }

private:
    template <typename Action>
    void Visit(Action action) {
        for (const ProfileFile::Entry& entry : files_.Entries()) {
            if (const auto place = FindField(entry.section, entry.key)) {
                action(std::string(entry.section) + "/" + std::string(entry.key), *place);
            }
        }
    }

    std::unique_ptr<FullProject> full_ = MakeFullProject();
    ProfileFile files_;
    std::unique_ptr<ProjectDocument> before_ = std::make_unique<ProjectDocument>();
};

} // namespace tavmoor::test
