#include "core/files/runtime_error.h"

#include <gtest/gtest.h>

namespace tavmoor {

TEST(RuntimeErrors, HaveTheClassicNumbersAndTexts) {
    const std::pair<int, const char*> texts[] = {{5, "Invalid procedure call or argument"},
                                                 {6, "Overflow"},
                                                 {9, "Subscript out of range"},
                                                 {13, "Type mismatch"},
                                                 {52, "Bad file name or number"},
                                                 {53, "File not found"},
                                                 {57, "Device I/O error"},
                                                 {58, "File already exists"},
                                                 {61, "Disk full"},
                                                 {67, "Too many files"},
                                                 {70, "Permission denied"},
                                                 {75, "Path/File access error"},
                                                 {76, "Path not found"}};
    for (const auto& [number, text] : texts) {
        const std::string report = "Run-time error '" + std::to_string(number) + "': " + text;
        EXPECT_EQ(RuntimeError(static_cast<ErrorNumber>(number), "").what(), report);
        EXPECT_EQ(RuntimeError(static_cast<ErrorNumber>(number), "Z:\\a").what(),
                  report + ": Z:\\a");
    }
    const std::pair<std::errc, int> failures[] = {{std::errc::no_such_file_or_directory, 53},
                                                  {std::errc::not_a_directory, 76},
                                                  {std::errc::is_a_directory, 75},
                                                  {std::errc::permission_denied, 70},
                                                  {std::errc::read_only_file_system, 70},
                                                  {std::errc::file_exists, 58},
                                                  {std::errc::filename_too_long, 52},
                                                  {std::errc::no_space_on_device, 61},
                                                  {std::errc::too_many_files_open, 67},
                                                  {std::errc::io_error, 57}};
    for (const auto& [condition, number] : failures) {
        const RuntimeError error = FileError(std::make_error_code(condition), "Z:\\a");
        EXPECT_EQ(static_cast<int>(error.Number()), number);
    }
}

} // namespace tavmoor
