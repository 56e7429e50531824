#pragma once

#include "core/field_text.h"
#include "core/profile_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace tavmoor::test {

/// A text whose lines are parted by '|', with the line ends of a file.
inline std::string Lines(const std::string& text) {
    std::string lines;
    for (const char character : text) {
        lines += character == '|' ? std::string("\r\n") : std::string(1, character);
    }
    return lines + "\r\n";
}

/// Compares fields by their stored form, each with a line "key=value" below its section.
inline void ExpectFields(const ProjectDocument& document, const std::string& lines) {
    const ProfileFile expected(Lines(lines));
    for (const ProfileFile::Entry& entry : expected.Entries()) {
        EXPECT_EQ(FieldText(document, FindField(entry.section, entry.key).value()), entry.value)
            << entry.section << " " << entry.key;
    }
}

} // namespace tavmoor::test
