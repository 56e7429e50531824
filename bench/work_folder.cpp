#include "work_folder.h"

#include <cstdlib>
#include <fstream>
#include <random>
#include <stdexcept>

namespace tavmoor::bench {

namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t FileSize = 256ULL << 20U;

void MakeFile(const fs::path& path) {
    std::mt19937_64 random(fs::hash_value(path));
    std::vector<std::uint64_t> block(1U << 17U);
    std::ofstream file(path, std::ios::binary);
    for (std::uint64_t written = 0; written < FileSize; written += block.size() * sizeof block[0]) {
        for (auto& word : block) {
            word = random();
        }
        file.write(reinterpret_cast<const char*>(block.data()),
                   static_cast<std::streamsize>(block.size() * sizeof block[0]));
    }
}

} // namespace

fs::path WorkFolder(const std::string& name) {
    const fs::path folder = fs::path(TAVMOOR_BENCH_FOLDER) / name;
    fs::remove_all(folder);
    fs::create_directories(folder);
    return folder;
}

const std::vector<fs::path>& BigFiles() {
    static const std::vector<fs::path> files = [] {
        const fs::path folder = fs::path(TAVMOOR_BENCH_FOLDER) / "big";
        fs::create_directories(folder);
        std::vector<fs::path> made;
        for (const char* name : {"one.mpg", "two.mpg", "three.mpg", "four.mpg"}) {
            made.push_back(folder / name);
            std::error_code missing;
            if (fs::file_size(made.back(), missing) != FileSize) {
                MakeFile(made.back());
            }
            RunShell("cat '" + made.back().string() + "' >/dev/null");
        }
        return made;
    }();
    return files;
}

void RunShell(const std::string& command) {
    if (std::system(command.c_str()) != 0) {
        throw std::runtime_error("failed: " + command);
    }
}

std::string CatCommand(const fs::path& target) {
    std::string command = "cat";
    for (const fs::path& file : BigFiles()) {
        command += " '" + file.string() + "'";
    }
    return command + " >'" + target.string() + "'";
}

} // namespace tavmoor::bench
