#include "core/files/runtime_error.h"

#include <array>
#include <cerrno>
#include <utility>

namespace tavmoor {

namespace {

std::string Report(ErrorNumber number, std::string_view detail) {
    std::string report = "Run-time error '" + std::to_string(static_cast<int>(number)) + "': ";
    report += ErrorText(number);
    if (!detail.empty()) {
        report += ": ";
        report += detail;
    }
    return report;
}

ErrorNumber NumberOf(const std::error_code& code) {
    static constexpr std::array<std::pair<std::errc, ErrorNumber>, 17> numbers{{
        {std::errc::no_such_file_or_directory, ErrorNumber::FileNotFound},
        {std::errc::not_a_directory, ErrorNumber::PathNotFound},
        {std::errc::is_a_directory, ErrorNumber::PathFileAccess},
        {std::errc::directory_not_empty, ErrorNumber::PathFileAccess},
        {std::errc::too_many_symbolic_link_levels, ErrorNumber::PathFileAccess},
        {std::errc::permission_denied, ErrorNumber::PermissionDenied},
        {std::errc::operation_not_permitted, ErrorNumber::PermissionDenied},
        {std::errc::read_only_file_system, ErrorNumber::PermissionDenied},
        {std::errc::text_file_busy, ErrorNumber::PermissionDenied},
        {std::errc::device_or_resource_busy, ErrorNumber::PermissionDenied},
        {std::errc::file_exists, ErrorNumber::FileExists},
        {std::errc::filename_too_long, ErrorNumber::BadFileName},
        {std::errc::illegal_byte_sequence, ErrorNumber::BadFileName},
        {std::errc::no_space_on_device, ErrorNumber::DiskFull},
        {std::errc::file_too_large, ErrorNumber::DiskFull},
        {std::errc::too_many_files_open, ErrorNumber::TooManyFiles},
        {std::errc::too_many_files_open_in_system, ErrorNumber::TooManyFiles},
    }};
    for (const auto& [condition, number] : numbers) {
        if (code == condition) {
            return number;
        }
    }
    return ErrorNumber::DeviceError;
}

} // namespace

std::string_view ErrorText(ErrorNumber number) {
    switch (number) {
    case ErrorNumber::InvalidCall:
        return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
        return "Overflow";
    case ErrorNumber::SubscriptOutOfRange:
        return "Subscript out of range";
    case ErrorNumber::TypeMismatch:
        return "Type mismatch";
    case ErrorNumber::BadFileName:
        return "Bad file name or number";
    case ErrorNumber::FileNotFound:
        return "File not found";
    case ErrorNumber::DeviceError:
        return "Device I/O error";
    case ErrorNumber::FileExists:
        return "File already exists";
    case ErrorNumber::DiskFull:
        return "Disk full";
    case ErrorNumber::TooManyFiles:
        return "Too many files";
    case ErrorNumber::PermissionDenied:
        return "Permission denied";
    case ErrorNumber::PathFileAccess:
        return "Path/File access error";
    case ErrorNumber::PathNotFound:
        return "Path not found";
    }
    return "Application-defined or object-defined error";
}

RuntimeError::RuntimeError(ErrorNumber number, std::string_view detail)
    : std::runtime_error(Report(number, detail)), number_(number) {}

std::error_code StreamError() {
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

RuntimeError FileError(const std::error_code& code, std::string_view path) {
    return {NumberOf(code), path};
}

} // namespace tavmoor
