// Stands in for the file store: what a fuzzed project names must never reach the machine's files,
// where a path could lead to a device. The linker takes these functions in place of the library's.

#include "core/files/file_store.h"
#include "core/files/runtime_error.h"
#include "core/text/text_case.h"

namespace tavmoor {

std::string ReadWholeFile(std::string_view path) {
    if (!EndsWithoutCase(path, "vt")) {
        throw RuntimeError(ErrorNumber::FileNotFound, path);
    }
    return "[Template]\r\nName=ADVANCED VISUAL EDITOR\r\ncommand number=101\r\n";
}

std::uint64_t FileLength(std::string_view path) {
    if (EndsWithoutCase(path, ".gif")) {
        throw RuntimeError(ErrorNumber::FileNotFound, path);
    }
    return EndsWithoutCase(path, ".bmp") ? 0 : 1;
}

std::uint64_t FileLengthOrZero(std::string_view path) {
    return EndsWithoutCase(path, ".gif") ? 0 : FileLength(path);
}

} // namespace tavmoor
