#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tavmoor {

// File operations on paths in document form. Unless the name says otherwise, a failure is a
// RuntimeError that names the file.

/// The whole content. Meant for texts and other small files; RuntimeError 75 for what is no file,
/// such as a folder, a device or a pipe.
std::string ReadWholeFile(std::string_view path);

/// Replaces the file at `path` by `bytes`: they are written beside it, flushed to the disk and
/// renamed over it. When that fails the old file stays as it was.
void WriteWholeFile(std::string_view path, std::string_view bytes);

/// Deletes what lies at `path` and writes a fresh file: for what a build can make again at any
/// time.
void WriteFreshFile(std::string_view path, std::string_view bytes);

/// The length of a file in bytes; RuntimeError 53 when there is none, 75 for a folder.
std::uint64_t FileLength(std::string_view path);

/// The length of a file, 0 when there is none or it cannot be asked.
std::uint64_t FileLengthOrZero(std::string_view path);

/// True when a file (not a folder) lies at the path and its length can be asked.
bool FileExists(std::string_view path);

/// True if the folder exists; any error counts as false.
bool FolderExists(std::string_view path);

/// Deletes a file, and swallows every failure: used where an older file may or may not lie.
void DeleteFileIgnoringErrors(std::string_view path);

/// Copies a file over another one, and swallows every failure.
/// @return true when the copy was made whole
bool CopyFileIgnoringErrors(std::string_view from, std::string_view to);

/// Moves a file. Where that cannot be (another file system, or a file at `to` that could not be
/// deleted) it is copied over and the source stays. Swallows every failure.
/// @return true when the file lies whole at `to`
bool MoveFileIgnoringErrors(std::string_view from, std::string_view to);

/// The names of the files in a folder that end in `extension` (with its dot, compared without
/// regard to case), sorted. A folder that cannot be read gives none.
std::vector<std::string> FileNamesIn(std::string_view folder, std::string_view extension);

} // namespace tavmoor
