#include "core/files/file_store.h"

#include "core/disk/durable_file.h"
#include "core/disk/file_copy.h"
#include "core/files/document_path.h"
#include "core/files/runtime_error.h"
#include "core/text/text_case.h"

#include <algorithm>
#include <cerrno>
#include <fstream>

namespace tavmoor {

namespace {

namespace fs = std::filesystem;

bool IsFolder(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

} // namespace

std::string ReadWholeFile(std::string_view path) {
    const fs::path native = NativePath(path);
    // A path can come from a stored project: a device would be read without end, a pipe waited for.
    std::error_code unknown;
    const fs::file_status status = fs::status(native, unknown);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        throw RuntimeError(ErrorNumber::PathFileAccess, path);
    }
    errno = 0;
    std::ifstream file;
    file.rdbuf()->pubsetbuf(nullptr, 0); // it is read in one go
    file.open(native, std::ios::binary);
    if (!file) {
        throw FileError(StreamError(), path);
    }
    // One byte more than the length tells the end; what is longer than it says is read on.
    std::error_code error;
    const auto length = fs::file_size(native, error);
    std::string bytes;
    std::size_t wanted = (error ? std::size_t{0} : static_cast<std::size_t>(length)) + 1;
    while (file) {
        const std::size_t old = bytes.size();
        bytes.resize(old + wanted);
        file.read(bytes.data() + old, static_cast<std::streamsize>(wanted));
        bytes.resize(old + static_cast<std::size_t>(file.gcount()));
        wanted = std::max<std::size_t>(bytes.size(), 1U << 12U);
    }
    if (file.bad()) {
        throw FileError(StreamError(), path);
    }
    return bytes;
}

void WriteWholeFile(std::string_view path, std::string_view bytes) {
    if (const std::error_code error = ReplaceFileDurably(NativePath(path), bytes)) {
        throw FileError(error, path);
    }
}

void WriteFreshFile(std::string_view path, std::string_view bytes) {
    DeleteFileIgnoringErrors(path);
    errno = 0;
    std::ofstream file(NativePath(path), std::ios::binary | std::ios::app);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) {
        throw FileError(StreamError(), path);
    }
}

std::uint64_t FileLength(std::string_view path) {
    std::error_code error;
    const auto length = fs::file_size(NativePath(path), error);
    if (error) {
        throw FileError(error, path);
    }
    return length;
}

std::uint64_t FileLengthOrZero(std::string_view path) {
    try {
        return FileLength(path);
    } catch (const RuntimeError&) {
        return 0;
    }
}

bool FileExists(std::string_view path) {
    const auto native = FindNativePath(path);
    std::error_code error;
    return native && fs::is_regular_file(*native, error);
}

bool FolderExists(std::string_view path) {
    const auto native = path.empty() ? std::nullopt : FindNativePath(path);
    return native && IsFolder(*native);
}

void DeleteFileIgnoringErrors(std::string_view path) {
    const auto native = FindNativePath(path);
    std::error_code error;
    if (native && !IsFolder(*native)) {
        fs::remove(*native, error);
    }
}

bool CopyFileIgnoringErrors(std::string_view from, std::string_view to) {
    const auto source = FindNativePath(from);
    const auto target = FindNativePath(to);
    return source && target && !CopyNativeFile(*source, *target);
}

bool MoveFileIgnoringErrors(std::string_view from, std::string_view to) {
    const auto source = FindNativePath(from);
    const auto target = FindNativePath(to);
    std::error_code error;
    if (!source || !target) {
        return false;
    }
    if (!fs::exists(fs::symlink_status(*target, error))) {
        fs::rename(*source, *target, error);
        if (!error) {
            return true;
        }
    }
    return !CopyNativeFile(*source, *target);
}

std::vector<std::string> FileNamesIn(std::string_view folder, std::string_view extension) {
    std::vector<std::string> names;
    const auto native = FindNativePath(folder);
    std::error_code error;
    if (!native) {
        return names;
    }
    fs::directory_iterator entries(*native, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error)) {
        std::error_code unreadable;
        if (!entries->is_regular_file(unreadable)) {
            continue;
        }
        const auto name = FindDocumentPath(entries->path().filename());
        if (name && EndsWithoutCase(*name, extension)) {
            names.push_back(*name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace tavmoor
