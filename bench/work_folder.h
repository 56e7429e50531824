#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tavmoor::bench {

/// A fresh folder below out/bench/.
std::filesystem::path WorkFolder(const std::string& name);

/// Four files of 256 MB, 1 GB in all, made once and read into the page cache.
const std::vector<std::filesystem::path>& BigFiles();
inline constexpr std::uint64_t BigFilesSize = 1ULL << 30U;

/// A shell command line; a failing one ends the benchmark.
void RunShell(const std::string& command);

/// The command that copies the big files into one with `cat`.
std::string CatCommand(const std::filesystem::path& target);

} // namespace tavmoor::bench
