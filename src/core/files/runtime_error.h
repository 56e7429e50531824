#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace tavmoor {

/// The classic numbers of run-time errors.
enum class ErrorNumber : int {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    DeviceError = 57,
    FileExists = 58,
    DiskFull = 61,
    TooManyFiles = 67,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
};

/// The classic text of a number, such as "File not found".
std::string_view ErrorText(ErrorNumber number);

/// The error that no step handles: it travels up to the one boundary of a program, which reports it
/// and ends the program. `what()` is the whole report, the detail (a file or a value) included; it
/// is text in the system's code page, like every text of the core.
class RuntimeError : public std::runtime_error {
public:
    RuntimeError(ErrorNumber number, std::string_view detail);

    [[nodiscard]] ErrorNumber Number() const noexcept { return number_; }

private:
    ErrorNumber number_;
};

/// Why a file stream failed. The streams tell no reason of their own; the system call behind them
/// left it in errno, which the caller sets to 0 before it uses the stream.
std::error_code StreamError();

/// The run-time error of a failed system call on the file that `path` names (document form).
[[nodiscard]] RuntimeError FileError(const std::error_code& code, std::string_view path);

} // namespace tavmoor
