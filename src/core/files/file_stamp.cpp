#include "core/files/file_stamp.h"

#include "core/files/document_path.h"
#include "core/files/file_store.h"

#include <system_error>

namespace tavmoor {

FileStamp FileStampOf(std::string_view path) {
    FileStamp stamp{std::string(path), FileLengthOrZero(path)};
    if (const auto native = FindNativePath(path)) {
        std::error_code missing;
        const auto written = std::filesystem::last_write_time(*native, missing);
        if (!missing) {
            stamp.written = written;
        }
    }
    return stamp;
}

} // namespace tavmoor
